#pragma once

#include "platform/linux/CarpetaPapelera.h"
#include "platform/linux/TrasladoPapelera.h"

#include <cstddef>
#include <string>

namespace ovanta {

/// Beyond these the cache of folder sizes is left as it is.
inline constexpr std::size_t maximoDeTamanos = 4 << 20;  ///< bytes of the file "directorysizes"
inline constexpr std::size_t maximoDeEntradas = 500'000; ///< files below the folder

/// Notes the disk usage of the folder `nombre`, which has just come into the Trash, in the Trash's
/// "directorysizes", so that file managers need not walk it. It is a cache that anybody may lose:
/// whatever goes wrong, it only stays without the entry.
void anotarTamano(const CarpetaPapelera &papelera, const std::string &nombre, const AlPaso &alPaso);

} // namespace ovanta
