#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace ovanta {

/// The number whose bytes stand there, the highest first. Of more than eight the last eight count.
inline std::uint64_t leerBigEndian(std::string_view bytes)
{
    std::uint64_t numero = 0;
    for (const char byte : bytes)
        numero = numero << 8 | static_cast<std::uint8_t>(byte);
    return numero;
}

/// The lowest `ancho` bytes of a number, the highest first.
inline std::string aBigEndian(std::uint64_t numero, std::size_t ancho)
{
    std::string bytes(ancho, '\0');
    for (auto i = ancho; i > 0; --i, numero >>= 8)
        bytes[i - 1] = static_cast<char>(numero);
    return bytes;
}

} // namespace ovanta
