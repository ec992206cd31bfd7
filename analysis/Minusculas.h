#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace ovanta {

/// With the letters A to Z in lower case; all other bytes as they are.
inline std::string minusculas(std::string_view texto)
{
    std::string baja(texto);
    std::ranges::transform(baja, baja.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 0x20) : c; });
    return baja;
}

} // namespace ovanta
