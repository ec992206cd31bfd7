#include "platform/linux/ContadoresLinux.h"

#include "platform/linux/InterpretarContadores.h"

#include <array>
#include <unistd.h>

namespace ovanta {

ContadoresLinux::ContadoresLinux(std::string raiz)
    : m_raiz(std::move(raiz)), m_stat(m_raiz + "/proc/stat"), m_netDev(m_raiz + "/proc/net/dev"),
      m_meminfo(m_raiz)
{
}

std::optional<Contadores::Ticks> ContadoresLinux::procesador()
{
    // The first line alone; the kernel writes out all of it whatever is read.
    std::array<char, 256> lugar;
    return interpretarStat(m_stat.leer(lugar));
}

Contadores::Red ContadoresLinux::red()
{
    return interpretarNetDev(m_netDev.leerEntero(m_lugar), [this](std::string_view interfaz) {
        return nombreDeTarjeta(interfaz) && tieneDispositivo(interfaz);
    });
}

bool ContadoresLinux::tieneDispositivo(std::string_view interfaz) const
{
    const std::string ruta = m_raiz + "/sys/class/net/" + std::string(interfaz) + "/device";
    return ::access(ruta.c_str(), F_OK) == 0;
}

std::optional<Contadores::Memoria> ContadoresLinux::memoria()
{
    const std::optional<LectorMeminfo::Datos> datos = m_meminfo.leer();
    if (!datos) return std::nullopt;
    return Memoria{.apps = datos->meminfo.apps(),
                   .wired = datos->meminfo.wired(),
                   .comprimida = datos->comprimida,
                   .fisica = datos->meminfo.memTotal};
}

} // namespace ovanta
