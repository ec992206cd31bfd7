#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ovanta {

/// Two capital hexadecimal digits for each byte.
std::string aHexadecimal(std::string_view bytes);

/// The bytes that `aHexadecimal` wrote; small letters are read too. Anything else gives nothing.
std::optional<std::string> deHexadecimal(std::string_view texto);

} // namespace ovanta
