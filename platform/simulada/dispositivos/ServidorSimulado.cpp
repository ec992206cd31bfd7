#include "platform/simulada/dispositivos/ServidorSimulado.h"

#include "core/ErrorSistema.h"

#include <arpa/inet.h>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

namespace ovanta {

namespace {

Descriptor nuevoEnchufe(int familia)
{
    Descriptor enchufe{::socket(familia, SOCK_STREAM, 0)};
    if (!enchufe.abierto()) lanzarErrno(errno);
    ::fcntl(enchufe.numero(), F_SETFD, FD_CLOEXEC);
    ::fcntl(enchufe.numero(), F_SETFL, O_NONBLOCK);
    return enchufe;
}

template <typename Direccion>
bool ocupar(const Descriptor &enchufe, const Direccion &direccion)
{
    return ::bind(enchufe.numero(), reinterpret_cast<const sockaddr *>(&direccion), sizeof direccion) == 0 &&
           ::listen(enchufe.numero(), 64) == 0;
}

} // namespace

Descriptor escucharEnRuta(const std::string &ruta)
{
    sockaddr_un direccion{};
    direccion.sun_family = AF_UNIX;
    if (ruta.size() >= sizeof direccion.sun_path) lanzarErrno(ENAMETOOLONG);
    std::memcpy(direccion.sun_path, ruta.data(), ruta.size());
    Descriptor enchufe = nuevoEnchufe(AF_UNIX);
    if (!ocupar(enchufe, direccion)) lanzarErrno(errno);
    return enchufe;
}

std::optional<Descriptor> escucharEnBucle(std::uint16_t puerto, const std::string &direccion)
{
    sockaddr_in6 lugar{};
    lugar.sin6_family = AF_INET6;
    lugar.sin6_port = htons(puerto);
    if (::inet_pton(AF_INET6, direccion.c_str(), &lugar.sin6_addr) != 1) lanzarErrno(EINVAL);
    Descriptor enchufe = nuevoEnchufe(AF_INET6);
    const int si = 1;
    const int no = 0; // an address that stands for one of IPv4 is served too
    ::setsockopt(enchufe.numero(), IPPROTO_IPV6, IPV6_V6ONLY, &no, sizeof no);
    ::setsockopt(enchufe.numero(), SOL_SOCKET, SO_REUSEADDR, &si, sizeof si);
    if (ocupar(enchufe, lugar)) return enchufe;
    if (errno == EADDRINUSE) return std::nullopt;
    lanzarErrno(errno);
}

std::uint16_t puertoDe(const Descriptor &escucha)
{
    sockaddr_in6 direccion{};
    socklen_t tamano = sizeof direccion;
    if (::getsockname(escucha.numero(), reinterpret_cast<sockaddr *>(&direccion), &tamano) != 0)
        lanzarErrno(errno);
    return ntohs(direccion.sin6_port);
}

ServidorSimulado::ServidorSimulado(Descriptor escucha, Conversacion conversacion)
    : m_escucha(std::move(escucha)), m_conversacion(std::move(conversacion)), m_hilo([this] { aceptar(); })
{
}

ServidorSimulado::~ServidorSimulado()
{
    m_parada.pedir();
    m_hilo.join();
    for (Conexion &conexion : m_conexiones)
        conexion.hilo.join();
}

void ServidorSimulado::aceptar()
{
    for (;;) {
        std::array<pollfd, 2> vistos{{{m_parada.descriptor(), POLLIN, 0}, {m_escucha.numero(), POLLIN, 0}}};
        if (::poll(vistos.data(), vistos.size(), -1) < 0 && errno != EINTR) return;
        if (vistos[0].revents != 0) return;
        if (vistos[1].revents == 0) continue;
        recoger();
        Descriptor enchufe{::accept(m_escucha.numero(), nullptr, nullptr)};
        if (enchufe.abierto()) atender(std::move(enchufe));
    }
}

void ServidorSimulado::atender(Descriptor enchufe)
{
    ::fcntl(enchufe.numero(), F_SETFD, FD_CLOEXEC);
    Conexion &conexion = m_conexiones.emplace_back();
    conexion.hilo = std::thread([this, &conexion, enchufe = std::move(enchufe)]() mutable {
        try {
            EnchufeSimulado canal(std::move(enchufe), m_parada);
            m_conversacion(canal);
        } catch (const FinDeConversacion &) {
        }
        conexion.acabada = true;
    });
}

void ServidorSimulado::recoger()
{
    for (auto conexion = m_conexiones.begin(); conexion != m_conexiones.end();) {
        if (!conexion->acabada) {
            ++conexion;
            continue;
        }
        conexion->hilo.join();
        conexion = m_conexiones.erase(conexion);
    }
}

} // namespace ovanta
