#include "ui/MarcasDeCopias.h"

#include "core/Tamano.h"

#include <algorithm>
#include <string_view>

namespace ovanta {

bool MarcasDeCopias::marcable(const GrupoDuplicados &grupo, const ArchivoHallado &copia)
{
    return !grupo.copias.empty() && grupo.copias.front().ruta != copia.ruta &&
           !grupo.esMismaCopiaFisica(copia);
}

bool MarcasDeCopias::algunaMarcada(const std::vector<ArchivoHallado> &copias) const
{
    return std::ranges::any_of(copias, [this](const ArchivoHallado &copia) { return marcada(copia); });
}

void MarcasDeCopias::marcar(const GrupoDuplicados &grupo, const ArchivoHallado &copia)
{
    if (!marcable(grupo, copia)) return;
    const std::vector<ArchivoHallado> mismas = grupo.rutasMismaCopiaFisica(copia);
    if (!algunaMarcada(mismas)) m_bytes = sumar(m_bytes, grupo.bytes);
    for (const ArchivoHallado &misma : mismas)
        m_marcadas.insert(misma.ruta);
}

void MarcasDeCopias::desmarcar(const GrupoDuplicados &grupo, const ArchivoHallado &copia)
{
    if (!marcable(grupo, copia)) return;
    const std::vector<ArchivoHallado> mismas = grupo.rutasMismaCopiaFisica(copia);
    if (!algunaMarcada(mismas)) return;
    for (const ArchivoHallado &misma : mismas)
        m_marcadas.erase(misma.ruta);
    m_bytes -= std::min(m_bytes, grupo.bytes);
}

void MarcasDeCopias::marcarTodasMenosLaOriginal(const GrupoDuplicados &grupo)
{
    std::unordered_set<std::string_view> contadas;
    for (const ArchivoHallado &copia : grupo.copias) {
        if (!marcable(grupo, copia)) continue;
        m_marcadas.insert(copia.ruta);
        // Pressed again it adds again: the figure is a running one, not a measure of what moves.
        if (contadas.insert(identidadDeCopia(copia)).second) m_bytes = sumar(m_bytes, grupo.bytes);
    }
}

void MarcasDeCopias::desmarcarTodo()
{
    m_marcadas.clear();
    m_bytes = 0;
}

} // namespace ovanta
