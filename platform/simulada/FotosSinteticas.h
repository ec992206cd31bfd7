#pragma once

#include "core/Fecha.h"

#include <string>

namespace ovanta {

/// Paints photographs into "Pictures": series of the same landscape that differ slightly, and
/// single ones. Throws `std::system_error`.
void ponerFotos(const std::string &hogar, Fecha ahora);

} // namespace ovanta
