#include "core/Ejecutar.h"
#include "bench/Bancos.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace ovanta {
namespace {

using Cronometro = std::chrono::steady_clock;

constexpr const char *herramienta = "/bin/true";
constexpr int porTanda = 100;

/// The least that starting a tool and waiting for it can cost.
void lanzarSinMas()
{
    char *argumentos[] = {const_cast<char *>(herramienta), nullptr};
    pid_t pid = 0;
    const int error = ::posix_spawn(&pid, herramienta, nullptr, nullptr, argumentos, environ);
    if (error != 0) throw std::system_error(error, std::system_category());
    if (::waitpid(pid, nullptr, 0) != pid) throw std::system_error(errno, std::system_category());
}

template <typename Accion>
double microsegundosPorVez(Accion accion)
{
    const auto desde = Cronometro::now();
    for (int i = 0; i < porTanda; ++i)
        accion();
    return std::chrono::duration<double, std::micro>(Cronometro::now() - desde).count() / porTanda;
}

double mediana(std::vector<double> valores)
{
    const auto medio = valores.begin() + static_cast<std::ptrdiff_t>(valores.size() / 2);
    std::ranges::nth_element(valores, medio);
    return *medio;
}

} // namespace

/// `ejecutar [rounds]`: one call of `ejecutar` against one bare launch of the same tool. Rounds of both
/// take turns, so that the machine's moods fall on either; the median round counts.
int bancoEjecutar(int argc, char **argv)
{
    const int tandas = std::max(1, argc > 1 ? std::atoi(argv[1]) : 15);
    std::vector<double> nuestras;
    std::vector<double> ajenas;
    for (int i = 0; i < tandas; ++i) {
        nuestras.push_back(microsegundosPorVez([] { ejecutar(herramienta, {}, 60, false); }));
        ajenas.push_back(microsegundosPorVez(lanzarSinMas));
    }
    const double nuestra = mediana(nuestras);
    const double ajena = mediana(ajenas);
    std::printf("{\"ejecutar_us\":%.1f,\"posix_spawn_us\":%.1f,\"ratio\":%.3f}\n", nuestra, ajena,
                nuestra / ajena);
    return 0;
}

} // namespace ovanta
