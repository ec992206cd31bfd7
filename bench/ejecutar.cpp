#include "core/Ejecutar.h"
#include "bench/Bancos.h"
#include "bench/Cronometro.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace ovanta {
namespace {

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

} // namespace

/// `ejecutar [rounds]`: one call of `ejecutar` against one bare launch of the same tool.
int bancoEjecutar(int argc, char **argv)
{
    const int tandas = std::max(1, argc > 1 ? std::atoi(argv[1]) : 15);
    const auto [nuestra, ajena] =
        compararPorTandas(tandas, porTanda, [] { ejecutar(herramienta, {}, 60, false); }, lanzarSinMas);
    std::printf("{\"ejecutar_us\":%.1f,\"posix_spawn_us\":%.1f,\"ratio\":%.3f}\n", nuestra, ajena,
                nuestra / ajena);
    return 0;
}

} // namespace ovanta
