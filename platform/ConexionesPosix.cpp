#include "platform/ConexionesPosix.h"

#include "platform/CanalPosix.h"

#include <algorithm>
#include <arpa/inet.h>
#include <cerrno>
#include <fcntl.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>

namespace ovanta {

namespace {

using std::chrono::milliseconds;
using Fallo = Conexiones::Fallo;

/// What fits in every system's address, the final NUL left out.
constexpr std::size_t maximoRuta = 103;
/// For a daemon whose queue of callers is full.
constexpr milliseconds esperaDeTurno = std::chrono::seconds{10};
constexpr milliseconds entreIntentos{20};

/// A stream socket that no launched program inherits and no call blocks on.
Descriptor nuevoSocket(int familia)
{
    Descriptor enchufe{::socket(familia, SOCK_STREAM, 0)};
    if (!enchufe.abierto()) return enchufe;
    const int banderas = ::fcntl(enchufe.numero(), F_GETFL);
    if (banderas < 0 || ::fcntl(enchufe.numero(), F_SETFL, banderas | O_NONBLOCK) < 0 ||
        ::fcntl(enchufe.numero(), F_SETFD, FD_CLOEXEC) < 0)
        enchufe.cerrar();
    return enchufe;
}

/// Whether the connection that was begun stands.
std::optional<Fallo> terminarConexion(int descriptor, milliseconds espera, const Plazo &plazo)
{
    if (const auto motivo = esperarDescriptor(descriptor, POLLOUT, espera, plazo))
        return *motivo == EsperaFallida::vencido ? Fallo::vencido : Fallo::sinRespuesta;
    int error = 0;
    socklen_t tamano = sizeof error;
    if (::getsockopt(descriptor, SOL_SOCKET, SO_ERROR, &error, &tamano) != 0 || error != 0)
        return Fallo::sinRespuesta;
    return std::nullopt;
}

std::optional<Fallo> conectar(int descriptor, const sockaddr *direccion, socklen_t tamano,
                              milliseconds espera, const Plazo &plazo)
{
    const auto fin = std::chrono::steady_clock::now() + esperaDeTurno;
    while (!plazo.vencido()) {
        if (::connect(descriptor, direccion, tamano) == 0) return std::nullopt;
        if (errno == EINPROGRESS || errno == EINTR) return terminarConexion(descriptor, espera, plazo);
        // Only a Unix socket answers so: its listener has too many callers.
        if (errno != EAGAIN || std::chrono::steady_clock::now() >= fin) return Fallo::sinRespuesta;
        std::this_thread::sleep_for(entreIntentos);
    }
    return Fallo::vencido;
}

Conexiones::Resultado abrir(Descriptor enchufe, const sockaddr *direccion, socklen_t tamano,
                            milliseconds espera, const Plazo &plazo)
{
    if (const auto fallo = conectar(enchufe.numero(), direccion, tamano, espera, plazo))
        return std::unexpected(*fallo);
    return std::make_unique<CanalPosix>(std::move(enchufe), plazo);
}

} // namespace

ConexionesPosix::ConexionesPosix(std::string rutaUsbmuxd) : m_rutaUsbmuxd(std::move(rutaUsbmuxd)) {}

Conexiones::Resultado ConexionesPosix::abrirUnix(const std::string &ruta, const Plazo &plazo)
{
    Descriptor enchufe = nuevoSocket(AF_UNIX);
    if (!enchufe.abierto()) return std::unexpected(Fallo::sinSocket);
    sockaddr_un direccion{};
    direccion.sun_family = AF_UNIX;
    std::copy_n(ruta.data(), std::min(ruta.size(), maximoRuta), direccion.sun_path);
    return abrir(std::move(enchufe), reinterpret_cast<const sockaddr *>(&direccion), sizeof direccion,
                 esperaDeTurno, plazo);
}

Conexiones::Resultado ConexionesPosix::abrirTcp6(const std::string &host, std::uint16_t puerto,
                                                 milliseconds espera, const Plazo &plazo)
{
    Descriptor enchufe = nuevoSocket(AF_INET6);
    if (!enchufe.abierto()) return std::unexpected(Fallo::sinSocket);
    sockaddr_in6 direccion{};
    direccion.sin6_family = AF_INET6;
    direccion.sin6_port = htons(puerto);
    if (::inet_pton(AF_INET6, host.c_str(), &direccion.sin6_addr) != 1)
        return std::unexpected(Fallo::direccionInvalida);
    return abrir(std::move(enchufe), reinterpret_cast<const sockaddr *>(&direccion), sizeof direccion, espera,
                 plazo);
}

} // namespace ovanta
