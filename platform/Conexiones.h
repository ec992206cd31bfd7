#pragma once

#include "platform/Plazo.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <expected>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace ovanta {

/// One connected stream socket, closed at its end. One thread at a time; calls block, but never longer than
/// its time-outs and its `Plazo` allow, and never raise a signal.
class Canal
{
public:
    enum class Fallo {
        cerrado,  ///< the other side is gone
        silencio, ///< nothing went within the time-out of the call
        vencido,  ///< the `Plazo` is over, or was given up
        sistema   ///< anything else that the system refused
    };

    virtual ~Canal() = default;

    /// Sends some of the bytes and tells how many: at least one, unless there are none.
    virtual std::expected<std::size_t, Fallo> enviar(std::string_view bytes) = 0;
    /// Waits for bytes and tells how many came: at least one. `cerrado` at the orderly end of the stream.
    virtual std::expected<std::size_t, Fallo> recibir(std::span<char> lugar) = 0;

    /// How long one call waits at most; 10 s each at first.
    virtual void ponerTiempos(std::chrono::milliseconds recibir, std::chrono::milliseconds enviar) = 0;
};

/// Stream sockets to what runs beside the program or at the other end of a cable. Any thread.
class Conexiones
{
public:
    enum class Fallo {
        sinSocket,         ///< the system has none left
        sinRespuesta,      ///< nobody listens, or not within the wait
        direccionInvalida, ///< the text is no IPv6 address
        vencido            ///< the `Plazo` is over, or was given up
    };
    using Resultado = std::expected<std::unique_ptr<Canal>, Fallo>;

    virtual ~Conexiones() = default;

    /// Where the daemon that knows the attached devices listens.
    virtual std::string rutaUsbmuxd() const = 0;

    /// Connects a Unix stream socket. Of the path the first 103 bytes count. The channel lives under
    /// `plazo`.
    virtual Resultado abrirUnix(const std::string &ruta, const Plazo &plazo) = 0;

    /// Connects to an IPv6 address in text form, within `espera`. The channel lives under `plazo`.
    virtual Resultado abrirTcp6(const std::string &host, std::uint16_t puerto,
                                std::chrono::milliseconds espera, const Plazo &plazo) = 0;
};

} // namespace ovanta
