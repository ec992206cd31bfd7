#include "platform/linux/LectorMeminfo.h"

#include "core/Tamano.h"
#include "platform/linux/EntradasDeCarpeta.h"
#include "platform/linux/LineasMemoria.h"

#include <array>

namespace ovanta {

LectorMeminfo::LectorMeminfo(const std::string &raiz) : m_meminfo(raiz + "/proc/meminfo")
{
    const std::string bloques = raiz + "/sys/block";
    for (const std::string &nombre : entradasDeCarpeta(bloques, "zram"))
        m_zram.emplace_back(bloques + "/" + nombre + "/mm_stat");
}

std::optional<LectorMeminfo::Datos> LectorMeminfo::leer()
{
    const std::optional<Meminfo> meminfo = interpretarMeminfo(m_meminfo.leerEntero(m_lugar));
    if (!meminfo) return std::nullopt;
    Datos datos{.meminfo = *meminfo, .comprimida = meminfo->zswap};
    for (LecturaRepetida &zram : m_zram) {
        std::array<char, 256> lugar;
        datos.comprimida = sumarConTope(datos.comprimida, interpretarZram(zram.leer(lugar)));
    }
    return datos;
}

} // namespace ovanta
