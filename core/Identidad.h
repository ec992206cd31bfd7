#pragma once

#include <compare>
#include <cstdint>

namespace ovanta {

/// Which file a path named when it was looked at, without following a final link: enough to tell
/// later that the path still names the very same one.
struct Identidad
{
    std::uint64_t dispositivo = 0; ///< st_dev
    std::uint64_t inodo = 0;       ///< st_ino
    std::uint32_t tipo = 0;        ///< st_mode & S_IFMT

    auto operator<=>(const Identidad &) const = default;
};

} // namespace ovanta
