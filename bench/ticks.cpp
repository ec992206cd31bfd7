#include "bench/Bancos.h"
#include "core/LeerArchivo.h"
#include "platform/linux/AplicacionesEnMarchaLinux.h"
#include "platform/linux/ContadoresLinux.h"
#include "platform/linux/MemoriaLinux.h"
#include "platform/linux/ProcesosLinux.h"
#include "platform/linux/TermicoLinux.h"

#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace ovanta {
namespace {

/// KiB that are this process's alone.
long memoriaPrivada()
{
    const std::string texto = leerArchivo("/proc/self/smaps_rollup", 1 << 16, EnlaceFinal::seguir);
    const auto lugar = texto.find("Private_Dirty:");
    if (lugar == std::string::npos) throw std::runtime_error("/proc/self/smaps_rollup");
    return std::strtol(texto.c_str() + lugar + sizeof "Private_Dirty:" - 1, nullptr, 10);
}

} // namespace

/// `ticks [times]`: all that the program reads of the machine at rest, so many times one after another,
/// and how much memory that keeps.
int bancoTicks(int argc, char **argv)
{
    const int veces = std::max(1, argc > 1 ? std::atoi(argv[1]) : 10'000);
    const auto fotografo = FotografoProcesos::deEsteEquipo();
    ProcesosLinux procesos{fotografo};
    AplicacionesEnMarchaLinux aplicaciones{fotografo, {}};
    MemoriaLinux memoria;
    ContadoresLinux contadores;
    TermicoLinux termico;
    std::size_t vistos = 0;
    const auto tick = [&] {
        memoria.leer();
        vistos += procesos.muestrear().size() + aplicaciones.listar().size();
        contadores.procesador();
        contadores.red();
        contadores.memoria();
        termico.estado();
    };
    for (int i = 0; i < 100; ++i)
        tick();
    const long antes = memoriaPrivada();
    for (int i = 0; i < veces; ++i)
        tick();
    const long despues = memoriaPrivada();
    if (vistos == 0) return 1;
    std::printf("{\"ticks\":%d,\"before_kib\":%ld,\"after_kib\":%ld}\n", veces, antes, despues);
    return 0;
}

} // namespace ovanta
