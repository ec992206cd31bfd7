#include "platform/simulada/dispositivos/EnchufeSimulado.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>

namespace ovanta {

void Parada::pedir()
{
    const char uno = 1;
    // The pipe is never emptied: a full one says the same.
    [[maybe_unused]] const ssize_t escritos = ::write(m_tuberia.escritura.numero(), &uno, 1);
}

EnchufeSimulado::EnchufeSimulado(Descriptor enchufe, const Parada &parada)
    : m_enchufe(std::move(enchufe)), m_parada(parada)
{
    ::fcntl(m_enchufe.numero(), F_SETFL, ::fcntl(m_enchufe.numero(), F_GETFL) | O_NONBLOCK);
}

EnchufeSimulado::~EnchufeSimulado()
{
    ::shutdown(m_enchufe.numero(), SHUT_WR);
    // Bytes that were never read would turn the end into a reset.
    std::array<char, 4096> descartado;
    while (::recv(m_enchufe.numero(), descartado.data(), descartado.size(), 0) > 0) {
    }
}

std::string EnchufeSimulado::leer(std::size_t cuantos)
{
    std::string bytes(cuantos, '\0');
    for (std::size_t leidos = 0; leidos < cuantos;)
        leidos += leerAlgo(std::span(bytes).subspan(leidos));
    return bytes;
}

std::size_t EnchufeSimulado::leerAlgo(std::span<char> destino)
{
    for (;;) {
        esperar(POLLIN);
        const ssize_t leidos = ::recv(m_enchufe.numero(), destino.data(), destino.size(), 0);
        if (leidos > 0) return static_cast<std::size_t>(leidos);
        if (leidos == 0 || (errno != EAGAIN && errno != EINTR)) throw FinDeConversacion{};
    }
}

void EnchufeSimulado::escribir(std::string_view bytes)
{
    const std::size_t hasta = m_fallos.cortarEnElByte.value_or(m_salidos + bytes.size());
    const bool corta = hasta < m_salidos + bytes.size();
    if (corta) bytes = bytes.substr(0, hasta > m_salidos ? hasta - m_salidos : 0);
    while (!bytes.empty()) {
        const std::string_view trozo = bytes.substr(0, m_fallos.trozo == 0 ? bytes.size() : m_fallos.trozo);
        pausar();
        escribirTrozo(trozo);
        bytes.remove_prefix(trozo.size());
    }
    if (corta) throw FinDeConversacion{};
}

void EnchufeSimulado::escribirTrozo(std::string_view trozo)
{
    while (!trozo.empty()) {
        esperar(POLLOUT);
        const ssize_t escritos = ::send(m_enchufe.numero(), trozo.data(), trozo.size(), MSG_NOSIGNAL);
        if (escritos < 0 && (errno == EAGAIN || errno == EINTR)) continue;
        if (escritos < 1) throw FinDeConversacion{};
        m_salidos += static_cast<std::size_t>(escritos);
        trozo.remove_prefix(static_cast<std::size_t>(escritos));
    }
}

void EnchufeSimulado::fijarFallos(const FallosSimulados &fallos)
{
    m_fallos = fallos;
    m_salidos = 0;
}

void EnchufeSimulado::callar()
{
    std::array<char, 4096> descartado;
    for (;;)
        leerAlgo(descartado);
}

void EnchufeSimulado::esperar(short sucesos)
{
    std::array<pollfd, 2> vistos{{{m_parada.descriptor(), POLLIN, 0}, {m_enchufe.numero(), sucesos, 0}}};
    while (::poll(vistos.data(), vistos.size(), -1) < 0)
        if (errno != EINTR) throw FinDeConversacion{};
    if (vistos[0].revents != 0) throw FinDeConversacion{};
}

void EnchufeSimulado::pausar()
{
    if (m_fallos.pausa.count() == 0) return;
    pollfd parada{m_parada.descriptor(), POLLIN, 0};
    if (::poll(&parada, 1, static_cast<int>(m_fallos.pausa.count())) > 0) throw FinDeConversacion{};
}

} // namespace ovanta
