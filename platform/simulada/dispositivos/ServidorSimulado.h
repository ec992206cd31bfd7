#pragma once

#include "platform/simulada/dispositivos/EnchufeSimulado.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <list>
#include <optional>
#include <string>
#include <thread>

namespace ovanta {

/// A socket that listens on the path of a Unix socket. Throws `std::system_error`.
Descriptor escucharEnRuta(const std::string &ruta);

/// A socket that listens on an address of this machine alone, ::1 or one below ::ffff:127.0.0.0; port 0 takes
/// any free one. Nothing where the port is taken. Throws `std::system_error`.
std::optional<Descriptor> escucharEnBucle(std::uint16_t puerto, const std::string &direccion = "::1");
/// The port of a socket that `escucharEnBucle` made.
std::uint16_t puertoDe(const Descriptor &escucha);

/// Serves each connection to a listening socket on a thread of its own. Its destructor ends every
/// conversation at once, whatever the clients do, and waits for the threads.
class ServidorSimulado
{
public:
    /// Runs on the connection's thread; what it throws as `FinDeConversacion` ends the connection.
    using Conversacion = std::function<void(EnchufeSimulado &)>;

    ServidorSimulado(Descriptor escucha, Conversacion conversacion);
    ~ServidorSimulado();
    ServidorSimulado(const ServidorSimulado &) = delete;
    ServidorSimulado &operator=(const ServidorSimulado &) = delete;

private:
    struct Conexion
    {
        std::atomic<bool> acabada = false;
        std::thread hilo;
    };

    void aceptar();
    void atender(Descriptor enchufe);
    void recoger();

    Descriptor m_escucha;
    Conversacion m_conversacion;
    Parada m_parada;
    std::list<Conexion> m_conexiones; ///< touched by the accepting thread, and after it has ended
    std::thread m_hilo;
};

} // namespace ovanta
