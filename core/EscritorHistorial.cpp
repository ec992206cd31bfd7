#include "core/EscritorHistorial.h"

#include "core/CarpetaDatos.h"
#include "core/EscrituraAtomica.h"
#include "core/Historial.h"

#include <unistd.h>
#include <utility>

namespace ovanta {

std::string archivoHistorial(const std::string &hogar)
{
    return carpetaDatos(hogar) + "/historial.json";
}

EscritorHistorial::EscritorHistorial(std::string hogar) : m_hogar(std::move(hogar)) {}

bool EscritorHistorial::escribir(const Encargo &encargo)
{
    const std::lock_guard guardia{m_cerrojo};
    if (encargo.numero > m_escrito) {
        if (escribirAtomico(archivoHistorial(m_hogar), codificarHistorial(encargo.historial)) != 0)
            return false;
        m_escrito = encargo.numero;
    }
    for (const auto &registro : encargo.registros)
        ::unlink(registro.c_str());
    return true;
}

} // namespace ovanta
