#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace ovanta {

/// The size in bytes out of what `du -sk` printed: the text before the first tab, without blanks at
/// its ends, is a number of kibibytes. Nothing where that is no unsigned number or the size in bytes
/// does not fit 64 bits.
std::optional<std::uint64_t> interpretarDu(std::string_view salida);

} // namespace ovanta
