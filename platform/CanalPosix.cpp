#include "platform/CanalPosix.h"

#include <cerrno>
#include <poll.h>
#include <sys/socket.h>

namespace ovanta {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

Canal::Fallo falloDeEspera(EsperaFallida motivo)
{
    switch (motivo) {
    case EsperaFallida::silencio:
        return Canal::Fallo::silencio;
    case EsperaFallida::vencido:
        return Canal::Fallo::vencido;
    case EsperaFallida::sistema:
        break;
    }
    return Canal::Fallo::sistema;
}

bool hayQueEsperar(int codigo)
{
    return codigo == EAGAIN || codigo == EWOULDBLOCK || codigo == EINTR;
}

/// Moves bytes with `mover`, which answers like send(2), as soon as the descriptor lets it. A call made
/// under an ended `plazo` moves nothing.
template <typename Mover>
std::expected<std::size_t, Canal::Fallo>
moverCuandoSePueda(int descriptor, short sucesos, milliseconds espera, const Plazo &plazo, Mover mover)
{
    const auto fin = steady_clock::now() + espera;
    while (!plazo.vencido()) {
        const ssize_t movidos = mover();
        if (movidos > 0) return static_cast<std::size_t>(movidos);
        if (movidos == 0 || errno == EPIPE) return std::unexpected(Canal::Fallo::cerrado);
        if (!hayQueEsperar(errno)) return std::unexpected(Canal::Fallo::sistema);
        const auto queda = std::chrono::ceil<milliseconds>(fin - steady_clock::now());
        if (const auto motivo = esperarDescriptor(descriptor, sucesos, queda, plazo))
            return std::unexpected(falloDeEspera(*motivo));
    }
    return std::unexpected(Canal::Fallo::vencido);
}

} // namespace

std::optional<EsperaFallida> esperarDescriptor(int descriptor, short sucesos, milliseconds espera,
                                               const Plazo &plazo)
{
    const auto fin = steady_clock::now() + espera;
    while (!plazo.vencido()) {
        const auto queda =
            std::max(std::chrono::ceil<milliseconds>(fin - steady_clock::now()), milliseconds{0});
        const auto tramo = std::min({queda, plazo.restante(), Plazo::pulso});
        pollfd vigilado{.fd = descriptor, .events = sucesos, .revents = 0};
        const int listos = ::poll(&vigilado, 1, static_cast<int>(tramo.count()));
        if (listos > 0) return std::nullopt;
        if (listos < 0 && errno != EINTR) return EsperaFallida::sistema;
        if (listos == 0 && tramo == queda) return EsperaFallida::silencio;
    }
    return EsperaFallida::vencido;
}

std::expected<std::size_t, Canal::Fallo> CanalPosix::enviar(std::string_view bytes)
{
    if (bytes.empty()) return 0;
    const int fd = m_descriptor.numero();
    return moverCuandoSePueda(fd, POLLOUT, m_enviar, m_plazo,
                              [&] { return ::send(fd, bytes.data(), bytes.size(), MSG_NOSIGNAL); });
}

std::expected<std::size_t, Canal::Fallo> CanalPosix::recibir(std::span<char> lugar)
{
    if (lugar.empty()) return 0;
    const int fd = m_descriptor.numero();
    return moverCuandoSePueda(fd, POLLIN, m_recibir, m_plazo,
                              [&] { return ::recv(fd, lugar.data(), lugar.size(), 0); });
}

void CanalPosix::ponerTiempos(milliseconds recibir, milliseconds enviar)
{
    m_recibir = recibir;
    m_enviar = enviar;
}

} // namespace ovanta
