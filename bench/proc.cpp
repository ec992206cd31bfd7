#include "bench/Bancos.h"
#include "bench/Cronometro.h"
#include "platform/linux/BarridoProc.h"

#include <cstdio>
#include <cstdlib>
#include <thread>

namespace ovanta {

/// `proc [rounds [pause]]`: one sweep over the processes of this machine, the median of the rounds after one
/// that warms up, each after a pause of so many milliseconds; by the clock and by the processor time it took
/// (what others run at that time does not count there). Per process that takes memory; threads of the kernel
/// cost, but don't count.
int bancoProc(int argc, char **argv)
{
    const int tandas = std::max(1, argc > 1 ? std::atoi(argv[1]) : 99);
    const std::chrono::milliseconds pausa(argc > 2 ? std::atoi(argv[2]) : 0);
    BarridoProc barrido;
    std::size_t vistos = barrido.barrer().size();
    std::vector<double> tiempos, procesador;
    for (int i = 0; i < tandas; ++i) {
        std::this_thread::sleep_for(pausa);
        const double antes = procesadorUs();
        tiempos.push_back(microsegundosPorVez(1, [&] { vistos = barrido.barrer().size(); }));
        procesador.push_back(procesadorUs() - antes);
    }
    if (vistos == 0) return 1;
    const auto cuantos = static_cast<double>(vistos);
    std::printf("{\"processes\":%zu,\"us_per_process\":%.3f,\"cpu_us_per_process\":%.3f}\n", vistos,
                mediana(std::move(tiempos)) / cuantos, mediana(std::move(procesador)) / cuantos);
    return 0;
}

} // namespace ovanta
