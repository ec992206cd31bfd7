#pragma once

#include "platform/simulada/dispositivos/EnchufeSimulado.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace ovanta {

/// One HTTP/2 frame (RFC 9113, section 4.1).
struct MarcoHttp2
{
    static constexpr std::uint8_t datos = 0;
    static constexpr std::uint8_t cabeceras = 1;
    static constexpr std::uint8_t ajustes = 4;
    static constexpr std::uint8_t eco = 6;
    static constexpr std::uint8_t despedida = 7;
    static constexpr std::uint8_t ventana = 8;
    static constexpr std::uint8_t acuse = 1;          ///< flag of SETTINGS and PING
    static constexpr std::uint8_t finDeCabeceras = 4; ///< flag of HEADERS

    std::uint8_t tipo = datos;
    std::uint8_t banderas = 0;
    std::uint32_t flujo = 0;
    std::string carga;

    std::string bytes() const;
    /// The next frame; ends the conversation (`FinDeConversacion`) on one that is far too long.
    static MarcoHttp2 leer(CanalSimulado &canal);
};

/// What a client sends before its first frame (RFC 9113, section 3.4).
inline constexpr std::string_view prefacioHttp2 = "PRI * HTTP/2.0\r\n\r\nSM\r\n\r\n";

/// One entry of SETTINGS.
std::string ajusteHttp2(std::uint16_t identificador, std::uint32_t valor);

} // namespace ovanta
