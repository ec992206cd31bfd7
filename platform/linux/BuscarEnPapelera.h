#pragma once

#include "core/Fecha.h"
#include "platform/linux/CarpetaPapelera.h"

#include <cstddef>
#include <string>

namespace ovanta {

inline constexpr std::size_t maximoDeInfo = 64 << 10;   ///< bytes; a longest path escaped has 12 KiB
inline constexpr std::size_t maximoDeInfos = 1'000'000; ///< entries of "info" that are looked at

/// Whether the Trash holds an item that lay at `rutaReal` and came there at `desde` or
/// later, in whole seconds. An info file whose item is missing does not count.
bool buscarEnPapelera(const CarpetaPapelera &papelera, const std::string &rutaReal, Fecha desde);

} // namespace ovanta
