#include "platform/simulada/CasaSintetica.h"

#include "platform/simulada/CachesSinteticas.h"
#include "platform/simulada/DescargasSinteticas.h"
#include "platform/simulada/FotosSinteticas.h"
#include "platform/simulada/MueblesMac.h"
#include "platform/simulada/SimuladoresSinteticos.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace ovanta {

namespace fs = std::filesystem;

CasaSintetica::CasaSintetica()
{
    std::string plantilla = fs::canonical(fs::temp_directory_path()).native() + "/ovanta-simulada.XXXXXX";
    if (!::mkdtemp(plantilla.data())) throw std::system_error(errno, std::generic_category(), plantilla);
    m_raiz = plantilla;
    m_hogar = m_raiz + "/Users/ana";
    fs::create_directories(m_hogar);
}

CasaSintetica::~CasaSintetica()
{
    std::error_code error; // what a test made unremovable is left to the system's own clean-up
    fs::remove_all(m_raiz, error);
}

void CasaSintetica::amueblar(const std::vector<std::string> &rutasDeReglas, Fecha ahora) const
{
    ponerMuebles(m_hogar, ahora);
    ponerDescargas(m_hogar, ahora);
    ponerSimuladores(m_hogar, ahora);
    ponerFotos(m_hogar, ahora);
    llenarCaches(m_hogar, rutasDeReglas, ahora);
}

} // namespace ovanta
