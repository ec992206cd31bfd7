#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace ovanta {

/// Takes the part before `fin` off the front of `resto`, and `fin` with it; all of it where there is none.
inline std::string_view cortar(std::string_view &resto, char fin)
{
    const std::size_t hasta = std::min(resto.find(fin), resto.size());
    const std::string_view parte = resto.substr(0, hasta);
    resto.remove_prefix(std::min(hasta + 1, resto.size()));
    return parte;
}

inline void saltarEspacios(std::string_view &resto)
{
    std::size_t espacios = 0;
    while (espacios < resto.size() && (resto[espacios] == ' ' || resto[espacios] == '\t'))
        ++espacios;
    resto.remove_prefix(espacios);
}

/// The next decimal number without a sign, taken off the front with the blanks before it. Nothing where
/// none stands there or it does not fit; `resto` is then at it. By hand, as a sweep reads thousands.
inline std::optional<std::uint64_t> numero(std::string_view &resto)
{
    saltarEspacios(resto);
    std::uint64_t valor = 0;
    std::size_t cifras = 0;
    for (; cifras < resto.size(); ++cifras) {
        const unsigned cifra = static_cast<unsigned char>(resto[cifras]) - unsigned{'0'};
        if (cifra > 9) break;
        if (__builtin_mul_overflow(valor, 10U, &valor) || __builtin_add_overflow(valor, cifra, &valor))
            return std::nullopt;
    }
    if (cifras == 0) return std::nullopt;
    resto.remove_prefix(cifras);
    return valor;
}

/// The numbers of a line in order; those that are not there stay 0. Tells how many there are.
template <std::size_t N>
std::size_t numeros(std::string_view linea, std::array<std::uint64_t, N> &valores)
{
    for (std::size_t i = 0; i < N; ++i) {
        const std::optional<std::uint64_t> valor = numero(linea);
        if (!valor) return i;
        valores[i] = *valor;
    }
    return N;
}

} // namespace ovanta
