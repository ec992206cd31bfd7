#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace ovanta {

/// The number whose bytes stand there, the lowest first; at most eight.
inline std::uint64_t leerLittleEndian(std::string_view bytes)
{
    std::uint64_t numero = 0;
    for (std::size_t i = bytes.size(); i > 0; --i)
        numero = numero << 8 | static_cast<std::uint8_t>(bytes[i - 1]);
    return numero;
}

/// The lowest `ancho` bytes of a number, the lowest first.
inline std::string aLittleEndian(std::uint64_t numero, std::size_t ancho)
{
    std::string bytes(ancho, '\0');
    for (std::size_t i = 0; i < ancho; ++i, numero >>= 8)
        bytes[i] = static_cast<char>(numero);
    return bytes;
}

} // namespace ovanta
