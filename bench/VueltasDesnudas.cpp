#include "bench/VueltasDesnudas.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <system_error>
#include <unistd.h>

namespace ovanta {

namespace {

class CanalGrabado final : public Canal
{
public:
    CanalGrabado(std::unique_ptr<Canal> real, Conversacion &conversacion, std::size_t conexion)
        : m_real(std::move(real)), m_conversacion(conversacion), m_conexion(conexion)
    {
    }

    std::expected<std::size_t, Fallo> enviar(std::string_view bytes) override
    {
        const auto enviados = m_real->enviar(bytes);
        if (enviados) paso(true).enviados += *enviados;
        return enviados;
    }
    std::expected<std::size_t, Fallo> recibir(std::span<char> lugar) override
    {
        const auto recibidos = m_real->recibir(lugar);
        if (recibidos) paso(false).recibidos += *recibidos;
        return recibidos;
    }
    void ponerTiempos(std::chrono::milliseconds recibir, std::chrono::milliseconds enviar) override
    {
        m_real->ponerTiempos(recibir, enviar);
    }

private:
    /// The current one, unless it is another connection's or has been answered.
    PasoGrabado &paso(bool alEnviar)
    {
        if (m_conversacion.empty() || m_conversacion.back().conexion != m_conexion ||
            (alEnviar && m_conversacion.back().recibidos > 0))
            m_conversacion.push_back({.conexion = m_conexion});
        return m_conversacion.back();
    }

    std::unique_ptr<Canal> m_real;
    Conversacion &m_conversacion;
    std::size_t m_conexion;
};

[[noreturn]] void fallar()
{
    throw std::system_error(errno, std::generic_category());
}

sockaddr_un direccion(const std::string &ruta)
{
    sockaddr_un direccion = {};
    direccion.sun_family = AF_UNIX;
    ruta.copy(direccion.sun_path, sizeof direccion.sun_path - 1);
    return direccion;
}

/// False at the end of the stream.
bool recibirTodo(int fd, std::size_t cuantos)
{
    char lugar[16384];
    while (cuantos > 0) {
        const ssize_t leidos = ::recv(fd, lugar, std::min(cuantos, sizeof lugar), 0);
        if (leidos <= 0) return false;
        cuantos -= static_cast<std::size_t>(leidos);
    }
    return true;
}

void enviarTodo(int fd, std::size_t cuantos)
{
    static const std::string nada(1 << 20, '\0');
    if (::send(fd, nada.data(), std::min(cuantos, nada.size()), MSG_NOSIGNAL) < 0) fallar();
}

} // namespace

Conexiones::Resultado ConexionesGrabadas::abrirUnix(const std::string &ruta, const Plazo &plazo)
{
    auto canal = m_reales.abrirUnix(ruta, plazo);
    if (!canal) return canal;
    return std::make_unique<CanalGrabado>(std::move(*canal), m_conversacion, m_abiertas++);
}

Conexiones::Resultado ConexionesGrabadas::abrirTcp6(const std::string &host, std::uint16_t puerto,
                                                    std::chrono::milliseconds espera, const Plazo &plazo)
{
    auto canal = m_reales.abrirTcp6(host, puerto, espera, plazo);
    if (!canal) return canal;
    return std::make_unique<CanalGrabado>(std::move(*canal), m_conversacion, m_abiertas++);
}

VueltasDesnudas::VueltasDesnudas(Conversacion conversacion) : m_conversacion(std::move(conversacion))
{
    for (const PasoGrabado &paso : m_conversacion)
        m_conexiones = std::max(m_conexiones, paso.conexion + 1);
    char carpeta[] = "/tmp/ovanta-banco.XXXXXX";
    if (!::mkdtemp(carpeta)) fallar();
    m_ruta = std::string(carpeta) + "/enchufe";
    m_escucha = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const sockaddr_un donde = direccion(m_ruta);
    if (m_escucha < 0 || ::bind(m_escucha, reinterpret_cast<const sockaddr *>(&donde), sizeof donde) != 0 ||
        ::listen(m_escucha, 16) != 0)
        fallar();
    m_hilo = std::thread([this] { atender(m_escucha); });
}

VueltasDesnudas::~VueltasDesnudas()
{
    ::shutdown(m_escucha, SHUT_RDWR);
    m_hilo.join();
    ::close(m_escucha);
    ::unlink(m_ruta.c_str());
    ::rmdir(m_ruta.substr(0, m_ruta.rfind('/')).c_str());
}

void VueltasDesnudas::atender(int escucha) const
{
    std::vector<std::jthread> hilos;
    for (std::size_t cuantas = 0;; ++cuantas) {
        const int fd = ::accept(escucha, nullptr, nullptr);
        if (fd < 0) return;
        if (cuantas % m_conexiones == 0) hilos.clear();
        hilos.emplace_back([this, fd, conexion = cuantas % m_conexiones] { responder(fd, conexion); });
    }
}

void VueltasDesnudas::responder(int fd, std::size_t conexion) const
{
    for (const PasoGrabado &paso : m_conversacion) {
        if (paso.conexion != conexion) continue;
        if (!recibirTodo(fd, paso.enviados)) break;
        if (paso.recibidos > 0) enviarTodo(fd, paso.recibidos);
    }
    ::close(fd);
}

void VueltasDesnudas::recorrer() const
{
    std::vector<int> abiertas;
    for (const PasoGrabado &paso : m_conversacion) {
        while (abiertas.size() <= paso.conexion) {
            const sockaddr_un donde = direccion(m_ruta);
            abiertas.push_back(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
            if (::connect(abiertas.back(), reinterpret_cast<const sockaddr *>(&donde), sizeof donde) != 0)
                fallar();
        }
        enviarTodo(abiertas[paso.conexion], paso.enviados);
        if (!recibirTodo(abiertas[paso.conexion], paso.recibidos)) fallar();
    }
    for (const int fd : abiertas)
        ::close(fd);
}

std::size_t VueltasDesnudas::bytes() const
{
    std::size_t suma = 0;
    for (const PasoGrabado &paso : m_conversacion)
        suma += paso.enviados + paso.recibidos;
    return suma;
}

} // namespace ovanta
