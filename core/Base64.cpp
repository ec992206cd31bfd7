#include "core/Base64.h"

#include <array>
#include <cstdint>

namespace ovanta {

namespace {

constexpr std::string_view alfabeto = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::uint8_t ninguno = 0xFF;

constexpr std::array<std::uint8_t, 256> valores = [] {
    std::array<std::uint8_t, 256> tabla{};
    tabla.fill(ninguno);
    for (std::size_t i = 0; i < alfabeto.size(); ++i)
        tabla[static_cast<std::uint8_t>(alfabeto[i])] = static_cast<std::uint8_t>(i);
    return tabla;
}();

std::uint32_t byteEn(std::string_view bytes, std::size_t lugar)
{
    return lugar < bytes.size() ? static_cast<std::uint8_t>(bytes[lugar]) : 0;
}

} // namespace

std::string aBase64(std::string_view bytes)
{
    std::string texto;
    texto.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const auto grupo = byteEn(bytes, i) << 16 | byteEn(bytes, i + 1) << 8 | byteEn(bytes, i + 2);
        for (const int salto : {18, 12, 6, 0})
            texto += alfabeto[grupo >> salto & 63];
    }
    if (const auto resto = bytes.size() % 3; resto != 0)
        texto.replace(texto.size() - 3 + resto, 3 - resto, 3 - resto, '=');
    return texto;
}

std::optional<std::string> deBase64(std::string_view texto)
{
    if (texto.size() % 4 != 0) return std::nullopt;
    std::size_t relleno = 0;
    for (; relleno < 2 && texto.ends_with('='); ++relleno)
        texto.remove_suffix(1);
    std::string bytes;
    bytes.reserve((texto.size() + relleno) / 4 * 3);
    std::uint32_t acumulado = 0;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const auto valor = valores[static_cast<std::uint8_t>(texto[i])];
        if (valor == ninguno) return std::nullopt;
        acumulado = acumulado << 6 | valor;
        if (i % 4 == 0) continue;
        // The second, third and fourth letter of a group each complete a byte.
        bytes += static_cast<char>(acumulado >> (6 - 2 * (i % 4)));
    }
    return bytes;
}

} // namespace ovanta
