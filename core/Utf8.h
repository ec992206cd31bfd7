#pragma once

#include <string>
#include <string_view>

namespace ovanta {

/// Whether the bytes are well-formed UTF-8 (Unicode 15, table 3-7: no overlong forms, no surrogates,
/// nothing above U+10FFFF). NUL is a character like any other.
bool esUtf8(std::string_view bytes);

/// The same bytes with U+FFFD in the place of each longest piece that could have begun a character but
/// does not (Unicode 15, section 3.9). At most three times as long.
std::string repararUtf8(std::string_view bytes);

/// Adds a code point up to U+10FFFF that is no surrogate.
void anadirUtf8(std::string &texto, char32_t letra);

} // namespace ovanta
