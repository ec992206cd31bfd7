#include "tests/devices/EscuchaDePrueba.h"

#include <algorithm>
#include <cerrno>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <system_error>

namespace ovanta::pruebas {

namespace {

void exigirDeSistema(bool hecho)
{
    if (!hecho) throw std::system_error(errno, std::generic_category());
}

} // namespace

EscuchaDePrueba::EscuchaDePrueba(const std::string &ruta) : m_escucha(::socket(AF_UNIX, SOCK_STREAM, 0))
{
    sockaddr_un direccion{};
    direccion.sun_family = AF_UNIX;
    ruta.copy(direccion.sun_path, sizeof direccion.sun_path - 1);
    exigirDeSistema(
        ::bind(m_escucha.numero(), reinterpret_cast<const sockaddr *>(&direccion), sizeof direccion) == 0);
    exigirDeSistema(::listen(m_escucha.numero(), 16) == 0);
}

EscuchaDePrueba::EscuchaDePrueba() : m_escucha(::socket(AF_INET6, SOCK_STREAM, 0))
{
    sockaddr_in6 direccion{};
    direccion.sin6_family = AF_INET6;
    direccion.sin6_addr = in6addr_loopback;
    exigirDeSistema(
        ::bind(m_escucha.numero(), reinterpret_cast<const sockaddr *>(&direccion), sizeof direccion) == 0);
    exigirDeSistema(::listen(m_escucha.numero(), 16) == 0);
}

EscuchaDePrueba::~EscuchaDePrueba()
{
    if (m_conexion >= 0) ::close(m_conexion);
}

std::uint16_t EscuchaDePrueba::puerto() const
{
    sockaddr_in6 direccion{};
    socklen_t tamano = sizeof direccion;
    exigirDeSistema(::getsockname(m_escucha.numero(), reinterpret_cast<sockaddr *>(&direccion), &tamano) ==
                    0);
    return ntohs(direccion.sin6_port);
}

int EscuchaDePrueba::aceptar()
{
    m_conexion = ::accept(m_escucha.numero(), nullptr, nullptr);
    exigirDeSistema(m_conexion >= 0);
    return m_conexion;
}

std::string EscuchaDePrueba::leer(int conexion, std::size_t cuantos) const
{
    std::string bytes(cuantos, '\0');
    exigirDeSistema(::recv(conexion, bytes.data(), cuantos, MSG_WAITALL) == static_cast<ssize_t>(cuantos));
    return bytes;
}

std::string EscuchaDePrueba::leerAlgo(int conexion) const
{
    char lugar[4096];
    const auto cuantos = ::recv(conexion, lugar, sizeof lugar, 0);
    return {lugar, static_cast<std::size_t>(std::max(cuantos, ssize_t{0}))};
}

void EscuchaDePrueba::escribir(int conexion, std::string_view bytes) const
{
    ::send(conexion, bytes.data(), bytes.size(), MSG_NOSIGNAL);
}

void EscuchaDePrueba::cerrar(int conexion)
{
    ::close(conexion);
    if (conexion == m_conexion) m_conexion = -1;
}

} // namespace ovanta::pruebas
