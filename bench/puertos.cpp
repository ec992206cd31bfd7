#include "bench/Bancos.h"
#include "bench/Cronometro.h"
#include "devices/RSD.h"
#include "platform/ConexionesPosix.h"

#include <arpa/inet.h>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace ovanta {
namespace {

constexpr const char *estaMaquina = "::1";

/// The least that finding one port closed can cost.
void probarSinMas(std::uint16_t puerto)
{
    const int fd = ::socket(AF_INET6, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    sockaddr_in6 direccion = {};
    direccion.sin6_family = AF_INET6;
    direccion.sin6_port = htons(puerto);
    ::inet_pton(AF_INET6, estaMaquina, &direccion.sin6_addr);
    if (::connect(fd, reinterpret_cast<const sockaddr *>(&direccion), sizeof direccion) != 0 &&
        errno == EINPROGRESS) {
        pollfd espera{.fd = fd, .events = POLLOUT, .revents = 0};
        ::poll(&espera, 1, 250);
    }
    ::close(fd);
}

} // namespace

/// `puertos [rounds]`: the search for a discovery at this machine, where nobody listens, against one bare
/// connection attempt at each of its ports.
int bancoPuertos(int argc, char **argv)
{
    const int tandas = std::max(1, argc > 1 ? std::atoi(argv[1]) : 15);
    ConexionesPosix conexiones;
    const auto buscar = [&conexiones] {
        static_cast<void>(RSD::servicios(conexiones, estaMaquina, Plazo{std::chrono::minutes(10)}));
    };
    const auto probarTodos = [] {
        for (std::uint16_t puerto = RSD::primerPuerto; puerto <= RSD::ultimoPuerto; ++puerto)
            probarSinMas(puerto);
    };
    const auto [nuestra, ajena] = compararPorTandas(tandas, 1, buscar, probarTodos);
    std::printf("{\"puertos\":%d,\"rsd_us\":%.1f,\"connect_us\":%.1f,\"ratio\":%.3f}\n",
                RSD::ultimoPuerto - RSD::primerPuerto + 1, nuestra, ajena, nuestra / ajena);
    return 0;
}

} // namespace ovanta
