#include "platform/linux/MemoriaLinux.h"

#include "core/Tamano.h"
#include "platform/linux/NivelDePresion.h"

#include <array>
#include <ctime>
#include <unistd.h>

namespace ovanta {

namespace {

/// Time asleep counts as time since the start.
std::optional<Fecha> arranqueDeLaMaquina()
{
    using namespace std::chrono;
    timespec desdeArranque;
    if (::clock_gettime(CLOCK_BOOTTIME, &desdeArranque) != 0) return std::nullopt;
    return floor<microseconds>(system_clock::now()) - seconds(desdeArranque.tv_sec) -
           floor<microseconds>(nanoseconds(desdeArranque.tv_nsec));
}

} // namespace

MemoriaLinux::MemoriaLinux(std::string raiz)
    : m_raiz(std::move(raiz)), m_meminfo(m_raiz), m_vmstat(m_raiz + "/proc/vmstat"),
      m_swaps(m_raiz + "/proc/swaps"), m_presion(m_raiz + "/proc/pressure/memory"),
      m_bytesPorPagina(static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE)))
{
    if (const auto datos = m_meminfo.leer()) m_fisica = datos->meminfo.memTotal;
}

MemoriaSistema::Lectura MemoriaLinux::leer()
{
    Lectura lectura;
    leerCategorias(lectura);
    leerSwap(lectura);
    lectura.nivel = m_nivel;
    lectura.arranque = arranqueDeLaMaquina();
    return lectura;
}

void MemoriaLinux::leerCategorias(Lectura &lectura)
{
    const std::optional<LectorMeminfo::Datos> datos = m_meminfo.leer();
    const Meminfo meminfo = datos ? datos->meminfo : Meminfo{};
    if (datos) {
        m_fisica = meminfo.memTotal;
        lectura.apps = meminfo.apps();
        lectura.wired = meminfo.wired();
        lectura.comprimida = datos->comprimida;
        lectura.cache = meminfo.cache();
        lectura.libre = meminfo.memFree;
        lectura.swapTotal = meminfo.swapTotal;
        lectura.swapUsado = meminfo.swapUsado();
    }
    std::array<char, 512> lugar;
    m_nivel = nivelDePresion(m_nivel, {.psi = interpretarPresion(m_presion.leer(lugar)),
                                       .disponible = meminfo.memAvailable,
                                       .total = meminfo.memTotal});
}

void MemoriaLinux::leerSwap(Lectura &lectura)
{
    const SwapEnZram enZram = interpretarSwaps(m_swaps.leerEntero(m_lugar));
    lectura.swapTotal = restarHastaCero(lectura.swapTotal, enZram.total);
    lectura.swapUsado = restarHastaCero(lectura.swapUsado, enZram.usado);
    std::uint64_t comprimidos = 0; // bytes
    for (const std::string &dispositivo : enZram.dispositivos) {
        std::array<char, 512> lugar;
        LecturaRepetida stat{m_raiz + "/sys/block/" + dispositivo + "/stat"};
        comprimidos = sumarConTope(comprimidos, interpretarBytesEscritos(stat.leer(lugar)));
    }
    lectura.swapouts =
        restarHastaCero(interpretarPswpout(m_vmstat.leerEntero(m_lugar)), comprimidos / m_bytesPorPagina);
}

} // namespace ovanta
