#pragma once

#include "devices/ErrorIOS.h"
#include "devices/TramasHttp2.h"
#include "devices/ValorXPC.h"

#include <cstddef>
#include <cstdint>
#include <expected>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ovanta {

/// TCP ports of a device by the name of the service.
using ServiciosRSD = std::map<std::string, std::uint16_t, std::less<>>;

/// The client's half of a discovery, without the socket: what to send at first, and what each frame of the
/// device leads to. One object for one conversation.
class DescubrimientoRSD
{
public:
    /// A device that names no services within so many frames is given up.
    static constexpr int tramasMaximas = 200;
    /// Bytes of DATA that a conversation may hold. The windows that `saludo` opens let a device send an
    /// eighth of it, and nothing opens them further.
    static constexpr std::size_t datosMaximos = 8 * 1024 * 1024;

    struct Paso
    {
        std::string respuesta;                 ///< to be sent at once; empty for nothing
        std::optional<ServiciosRSD> servicios; ///< the end of the conversation
    };

    /// All that the client says of its own accord, each element sent by itself, in this order.
    static std::vector<std::string> saludo();

    /// Takes in one frame. `protocolo` where the device says goodbye or sends beyond all bounds.
    std::expected<Paso, ErrorIOS> recibir(const http2::Cabecera &cabecera, std::string_view carga);

private:
    std::optional<ServiciosRSD> tomarMensajes(std::string &pendiente);

    std::map<std::uint32_t, std::string> m_pendientes; ///< of each stream, what no whole message was yet
    std::size_t m_datos = 0;
};

/// What `Services` of a device's message says: entries whose `Port` is the text of a number from 0 to
/// 65535, in decimal, perhaps behind a "+". Nothing where the message has no such dictionary.
std::optional<ServiciosRSD> serviciosDe(const ValorXPC &mensaje);

/// The pipe that a discovery runs over: exactly so many bytes in, all the bytes out.
struct TuboRSD
{
    std::function<std::expected<std::string, ErrorIOS>(std::size_t)> leer;
    std::function<std::expected<void, ErrorIOS>(std::string_view)> escribir;
};

/// A whole discovery. Errors of the pipe are passed on.
std::expected<ServiciosRSD, ErrorIOS> descubrirServicios(const TuboRSD &tubo);

} // namespace ovanta
