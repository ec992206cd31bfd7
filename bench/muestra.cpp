#include "bench/Bancos.h"
#include "bench/Cronometro.h"
#include "platform/linux/ContadoresLinux.h"
#include "platform/linux/TermicoLinux.h"

#include <cstdio>
#include <cstdlib>

namespace ovanta {
namespace {

constexpr int porTanda = 500;

/// The median over the rounds.
template <typename F>
double medir(int tandas, F accion)
{
    std::vector<double> veces;
    for (int i = 0; i < tandas; ++i)
        veces.push_back(microsegundosPorVez(porTanda, accion));
    return mediana(std::move(veces));
}

} // namespace

/// `muestra [rounds]`: what the sampler behind the bar reads at one tick, and each part of it.
int bancoMuestra(int argc, char **argv)
{
    const int tandas = std::max(1, argc > 1 ? std::atoi(argv[1]) : 9);
    ContadoresLinux contadores;
    TermicoLinux termico;
    int fallos = 0;
    const double procesador = medir(tandas, [&] { fallos += !contadores.procesador(); });
    const double memoria = medir(tandas, [&] { fallos += !contadores.memoria(); });
    const double red = medir(tandas, [&] { contadores.red(); });
    const double calor = medir(tandas, [&] { termico.estado(); });
    if (fallos != 0) return 1;
    std::printf("{\"muestra_us\":%.2f,\"procesador_us\":%.2f,\"memoria_us\":%.2f,\"red_us\":%.2f,"
                "\"calor_us\":%.2f}\n",
                procesador + memoria + red + calor, procesador, memoria, red, calor);
    return 0;
}

} // namespace ovanta
