#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ovanta {

/// Base64 of RFC 4648, section 4, with padding and without line ends.
std::string aBase64(std::string_view bytes);

/// The bytes of it. Nothing where there is any other character, or the length is no multiple of 4.
std::optional<std::string> deBase64(std::string_view texto);

} // namespace ovanta
