#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// Frames of HTTP/2 (RFC 9113, section 4.1) as far as a conversation without requests needs them. Pure;
/// any thread.
namespace ovanta::http2 {

/// What a client sends before its first frame (section 3.4).
inline constexpr std::string_view prefacio = "PRI * HTTP/2.0\r\n\r\nSM\r\n\r\n";

enum Tipo : std::uint8_t {
    datos = 0x0,
    cabeceras = 0x1,
    ajustes = 0x4,
    despedida = 0x7,
    ventana = 0x8,
};

inline constexpr std::uint8_t flagAck = 0x1;            ///< of `ajustes`
inline constexpr std::uint8_t flagFinDeCabeceras = 0x4; ///< of `cabeceras`

/// The nine bytes before a payload.
struct Cabecera
{
    static constexpr std::size_t bytes = 9;

    std::uint32_t longitud = 0; ///< of the payload, 24 bits
    std::uint8_t tipo = 0;
    std::uint8_t flags = 0;
    std::uint32_t stream = 0; ///< all 32 bits, the reserved one among them

    bool operator==(const Cabecera &) const = default;
};

/// `bytes` must be `Cabecera::bytes` long.
Cabecera leerCabecera(std::string_view bytes);

/// One frame. The low 24 bits of the length of `carga` are written.
std::string frame(std::uint8_t tipo, std::uint8_t flags, std::uint32_t stream, std::string_view carga);

/// An entry of `ajustes`.
std::string ajuste(std::uint16_t id, std::uint32_t valor);
/// The payload of `ventana`.
std::string incremento(std::uint32_t bytes);

} // namespace ovanta::http2
