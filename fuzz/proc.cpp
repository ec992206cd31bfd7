#include "platform/linux/LineasMemoria.h"
#include "platform/linux/LineasProc.h"
#include "platform/linux/Meminfo.h"

#include <cstdint>
#include <cstdlib>

using namespace ovanta;

namespace {

void exigir(bool cierto)
{
    if (!cierto) std::abort();
}

bool esParteDe(std::string_view parte, std::string_view texto)
{
    return parte.empty() ||
           (parte.data() >= texto.data() && parte.data() + parte.size() <= texto.data() + texto.size());
}

/// What is told of a process lies in its text, and what is cut off the end changes nothing that was
/// complete before.
void deUnProceso(std::string_view texto)
{
    const auto stat = interpretarLineaStat(texto);
    if (stat) {
        exigir(esParteDe(stat->comm, texto) && stat->padre >= 0 && stat->comm.size() < texto.size());
        exigir(interpretarLineaStat(std::string(texto) + " 1 2 3\n") == stat);
    }
    const auto statm = interpretarLineaStatm(texto);
    if (statm) exigir(interpretarLineaStatm(std::string(texto) + "\n") == statm);
    exigir(interpretarVmSwap(texto) == 0 || texto.find("VmSwap:") != std::string_view::npos);
    const std::string_view programa = programaDeCmdline(texto);
    exigir(esParteDe(programa, texto) && programa.find('\0') == std::string_view::npos);
    const std::string_view exe = rutaDeExe(texto);
    exigir(exe.empty() || (exe.starts_with('/') && texto.starts_with(exe)));
}

/// A memory has a size, and no figure of it wraps.
void deLaMemoria(std::string_view texto)
{
    const auto memoria = interpretarMeminfo(texto);
    if (memoria) {
        exigir(memoria->memTotal > 0 && memoria->apps() >= memoria->shmem);
        exigir(memoria->wired() >= memoria->mlocked && memoria->cache() >= memoria->buffers);
        exigir(memoria->swapUsado() <= memoria->swapTotal);
    }
    const SwapEnZram swap = interpretarSwaps(texto);
    exigir(!swap.dispositivos.empty() || (swap.total == 0 && swap.usado == 0));
    for (const std::string &dispositivo : swap.dispositivos)
        exigir(dispositivo.find('/') == std::string::npos);
    exigir(interpretarPswpout(texto) == 0 || texto.find("pswpout") != std::string_view::npos);
    if (interpretarPresion(texto)) exigir(texto.find("avg10=") != std::string_view::npos);
    exigir(!texto.empty() || (interpretarZram(texto) == 0 && interpretarBytesEscritos(texto) == 0));
}

} // namespace

/// Whatever /proc shows of the memory and of a process.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *datos, std::size_t tamano)
{
    const std::string_view texto(reinterpret_cast<const char *>(datos), tamano);
    deUnProceso(texto);
    deLaMemoria(texto);
    return 0;
}
