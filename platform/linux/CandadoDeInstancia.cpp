#include "platform/linux/CandadoDeInstancia.h"

#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/un.h>

namespace ovanta {

namespace {

/// Nothing for a path that a socket address has no room for.
std::optional<sockaddr_un> direccion(const std::string &ruta)
{
    sockaddr_un resultado{};
    resultado.sun_family = AF_UNIX;
    if (ruta.size() >= sizeof resultado.sun_path) return std::nullopt;
    ruta.copy(resultado.sun_path, ruta.size());
    return resultado;
}

Descriptor abrirSocket()
{
    return Descriptor{::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)};
}

const sockaddr *generica(const sockaddr_un &direccion)
{
    return reinterpret_cast<const sockaddr *>(&direccion);
}

} // namespace

CandadoDeInstancia::CandadoDeInstancia(const std::string &carpeta)
    : m_rutaCandado(carpeta + "/com.belmora.Ovanta.lock"), m_rutaSocket(carpeta + "/com.belmora.Ovanta.sock")
{
}

CandadoDeInstancia::~CandadoDeInstancia()
{
    // The lock file stays: were it removed, two processes could each lock a file of that name.
    if (m_oyente.abierto()) ::unlink(m_rutaSocket.c_str());
}

bool CandadoDeInstancia::tomar(std::function<void()> alActivar)
{
    m_alActivar = std::move(alActivar);
    m_candado = Descriptor{
        ::open(m_rutaCandado.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600)};
    if (!m_candado.abierto()) return true;
    if (::flock(m_candado.numero(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK) return true;
        llamarAlOtro();
        return false;
    }
    escuchar();
    return true;
}

void CandadoDeInstancia::escuchar()
{
    const auto destino = direccion(m_rutaSocket);
    if (!destino) return;
    Descriptor oyente = abrirSocket();
    ::unlink(m_rutaSocket.c_str()); // of a process that was killed: the lock is ours now
    if (::bind(oyente.numero(), generica(*destino), sizeof *destino) != 0) return;
    if (::listen(oyente.numero(), SOMAXCONN) != 0) return;
    m_oyente = std::move(oyente);
    m_vigia = std::make_unique<QSocketNotifier>(m_oyente.numero(), QSocketNotifier::Read);
    QObject::connect(m_vigia.get(), &QSocketNotifier::activated, m_vigia.get(), [this] { atender(); });
}

void CandadoDeInstancia::atender()
{
    const Descriptor llamada{::accept4(m_oyente.numero(), nullptr, nullptr, SOCK_CLOEXEC)};
    if (llamada.abierto()) m_alActivar();
}

void CandadoDeInstancia::llamarAlOtro() const
{
    const auto destino = direccion(m_rutaSocket);
    if (!destino) return;
    // To connect is the whole message.
    const Descriptor socket = abrirSocket();
    ::connect(socket.numero(), generica(*destino), sizeof *destino);
}

} // namespace ovanta
