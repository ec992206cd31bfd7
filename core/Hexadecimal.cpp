#include "core/Hexadecimal.h"

namespace ovanta {

namespace {

constexpr std::string_view cifras = "0123456789ABCDEF";

int valor(char cifra)
{
    if (cifra >= 'a' && cifra <= 'f') cifra = static_cast<char>(cifra - 'a' + 'A');
    const auto posicion = cifras.find(cifra);
    return posicion == std::string_view::npos ? -1 : static_cast<int>(posicion);
}

} // namespace

std::string aHexadecimal(std::string_view bytes)
{
    std::string texto;
    texto.reserve(2 * bytes.size());
    for (const char letra : bytes) {
        const auto byte = static_cast<unsigned char>(letra);
        texto += cifras[byte >> 4];
        texto += cifras[byte & 0x0F];
    }
    return texto;
}

std::optional<std::string> deHexadecimal(std::string_view texto)
{
    if (texto.size() % 2 != 0) return std::nullopt;
    std::string bytes;
    bytes.reserve(texto.size() / 2);
    for (std::size_t i = 0; i < texto.size(); i += 2) {
        const int alto = valor(texto[i]);
        const int bajo = valor(texto[i + 1]);
        if (alto < 0 || bajo < 0) return std::nullopt;
        bytes += static_cast<char>(alto << 4 | bajo);
    }
    return bytes;
}

} // namespace ovanta
