#pragma once

#include "core/Fecha.h"

#include <string>
#include <vector>

namespace ovanta {

/// Gives contents to the places that the catalogue names ("~" for the home), as far as they are not
/// there yet. Which stay absent or empty and how big the others are follows from their order alone.
/// Throws `std::system_error`.
void llenarCaches(const std::string &hogar, const std::vector<std::string> &rutas, Fecha ahora);

} // namespace ovanta
