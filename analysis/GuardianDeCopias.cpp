#include "analysis/GuardianDeCopias.h"

#include "analysis/Nanosegundos.h"
#include "core/AbrirCamino.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace ovanta {

bool sigueIgual(const ArchivoHallado &archivo)
{
    struct stat atributos = {};
    if (describirCamino(archivo.ruta.c_str(), &atributos) != 0 || !S_ISREG(atributos.st_mode)) return false;
    const std::string identidad = std::to_string(atributos.st_dev) + ":" + std::to_string(atributos.st_ino);
    return archivo.identidadFisica == identidad &&
           static_cast<std::uint64_t>(atributos.st_size) == archivo.bytes &&
           nanosegundosDe(atributos) == archivo.modificadoNs;
}

GuardianDeCopias::Lote::Lote(std::shared_ptr<GuardianDeCopias> guardian, std::vector<GrupoDuplicados> grupos,
                             const std::vector<std::string> &marcadas)
    : m_guardian(std::move(guardian)), m_deCopias(true), m_grupos(std::move(grupos))
{
    const std::unordered_set<std::string> marcas(marcadas.begin(), marcadas.end());
    for (std::size_t g = 0; g < m_grupos.size(); ++g)
        for (std::size_t c = 0; c < m_grupos[g].copias.size(); ++c)
            if (marcas.contains(m_grupos[g].copias[c].ruta))
                m_marcadas.emplace(m_grupos[g].copias[c].ruta, Lugar{g, c});
}

GuardianDeCopias::Lote::Lote(std::shared_ptr<GuardianDeCopias> guardian)
    : m_guardian(std::move(guardian)), m_deCopias(false)
{
}

GuardianDeCopias::Lote::~Lote()
{
    const std::lock_guard guardia{m_guardian->m_cerrojo};
    for (const std::string &ruta : m_reservadas)
        if (--m_guardian->m_reservadas[ruta] == 0) m_guardian->m_reservadas.erase(ruta);
    for (const std::string &ruta : m_salientes)
        m_guardian->m_salientes.erase(m_guardian->m_salientes.find(ruta));
}

std::expected<void, std::string> GuardianDeCopias::Lote::permitir(const std::string &ruta)
{
    const std::lock_guard guardia{m_guardian->m_cerrojo};
    if (m_guardian->m_reservadas.contains(ruta))
        return std::unexpected("es la copia que se conserva de otras que se están moviendo");
    if (m_deCopias)
        if (auto copia = permitirCopia(ruta); !copia) return copia;
    m_guardian->m_salientes.insert(ruta);
    m_salientes.push_back(ruta);
    return {};
}

std::expected<void, std::string> GuardianDeCopias::Lote::permitirCopia(const std::string &ruta)
{
    const auto marcada = m_marcadas.find(ruta);
    if (marcada == m_marcadas.end()) return std::unexpected("no es una copia marcada");
    const auto [grupo, copia] = marcada->second;
    if (!sigueIgual(m_grupos[grupo].copias[copia]))
        return std::unexpected("cambió después de compararse; vuelve a analizar");
    const ArchivoHallado *queda = copiaQueQueda(m_grupos[grupo]);
    if (!queda) return std::unexpected("no queda otra copia igual sin marcar; se conserva");
    ++m_guardian->m_reservadas[queda->ruta];
    m_reservadas.push_back(queda->ruta);
    return {};
}

const ArchivoHallado *GuardianDeCopias::Lote::copiaQueQueda(const GrupoDuplicados &grupo) const
{
    const auto queda = std::ranges::find_if(grupo.copias, [this](const ArchivoHallado &otra) {
        return !m_marcadas.contains(otra.ruta) && !m_guardian->m_salientes.contains(otra.ruta) &&
               sigueIgual(otra);
    });
    return queda == grupo.copias.end() ? nullptr : &*queda;
}

} // namespace ovanta
