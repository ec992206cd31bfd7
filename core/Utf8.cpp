#include "core/Utf8.h"

#include <cstdint>
#include <cstring>

namespace ovanta {
namespace {

struct Secuencia
{
    std::size_t largo;
    unsigned char segundoMin;
    unsigned char segundoMax;
};

/// What may follow a first byte; a length of 0 is a byte that starts nothing.
Secuencia secuenciaDe(unsigned char primero)
{
    if (primero < 0x80) return {1, 0, 0};
    if (primero < 0xC2) return {0, 0, 0};
    if (primero < 0xE0) return {2, 0x80, 0xBF};
    if (primero == 0xE0) return {3, 0xA0, 0xBF};
    if (primero == 0xED) return {3, 0x80, 0x9F};
    if (primero < 0xF0) return {3, 0x80, 0xBF};
    if (primero == 0xF0) return {4, 0x90, 0xBF};
    if (primero < 0xF4) return {4, 0x80, 0xBF};
    if (primero == 0xF4) return {4, 0x80, 0x8F};
    return {0, 0, 0};
}

/// Length of the character at the start of `bytes` (not empty), or 0 where there is none.
std::size_t largoCaracter(std::string_view bytes)
{
    const auto byte = [bytes](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const Secuencia s = secuenciaDe(byte(0));
    if (s.largo <= 1) return s.largo;
    if (bytes.size() < s.largo || byte(1) < s.segundoMin || byte(1) > s.segundoMax) return 0;
    for (std::size_t i = 2; i < s.largo; ++i) {
        if ((byte(i) & 0xC0) != 0x80) return 0;
    }
    return s.largo;
}

/// Bytes at the start of `bytes`, which begin no character, that could still have been one: at least 1.
std::size_t largoRoto(std::string_view bytes)
{
    const auto byte = [bytes](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const Secuencia s = secuenciaDe(byte(0));
    if (s.largo <= 1 || bytes.size() < 2 || byte(1) < s.segundoMin || byte(1) > s.segundoMax) return 1;
    std::size_t i = 2;
    while (i < bytes.size() && i < s.largo && (byte(i) & 0xC0) == 0x80)
        ++i;
    return i;
}

/// Tools print ASCII nearly always, and sometimes a gigabyte of it: eight bytes at a time.
std::size_t prefijoAscii(std::string_view bytes)
{
    std::size_t i = 0;
    for (std::uint64_t ocho = 0; i + sizeof ocho <= bytes.size(); i += sizeof ocho) {
        std::memcpy(&ocho, bytes.data() + i, sizeof ocho);
        if ((ocho & 0x8080808080808080U) != 0) break;
    }
    return i;
}

} // namespace

bool esUtf8(std::string_view bytes)
{
    while (!bytes.empty()) {
        bytes.remove_prefix(prefijoAscii(bytes));
        if (bytes.empty()) break;
        const std::size_t largo = largoCaracter(bytes);
        if (largo == 0) return false;
        bytes.remove_prefix(largo);
    }
    return true;
}

std::string repararUtf8(std::string_view bytes)
{
    if (esUtf8(bytes)) return std::string(bytes);
    std::string reparado;
    reparado.reserve(bytes.size());
    while (!bytes.empty()) {
        const std::size_t entero = largoCaracter(bytes);
        const std::size_t tomados = entero == 0 ? largoRoto(bytes) : entero;
        reparado += entero == 0 ? std::string_view("\xEF\xBF\xBD") : bytes.substr(0, entero);
        bytes.remove_prefix(tomados);
    }
    return reparado;
}

void anadirUtf8(std::string &texto, char32_t letra)
{
    if (letra < 0x80) {
        texto += static_cast<char>(letra);
        return;
    }
    const int colas = letra < 0x800 ? 1 : letra < 0x10000 ? 2 : 3;
    constexpr char32_t cabezas[] = {0, 0xC0, 0xE0, 0xF0};
    texto += static_cast<char>(cabezas[colas] | letra >> (6 * colas));
    for (int i = colas - 1; i >= 0; --i)
        texto += static_cast<char>(0x80 | (letra >> (6 * i) & 0x3F));
}

} // namespace ovanta
