#pragma once

#include "core/Fecha.h"

#include <string>

namespace ovanta {

/// Leaves in `hogar` the readings that were taken of two devices of the household (see
/// `HogarDeDispositivos`) in the months before `ahora`, as the program keeps them. Throws
/// `std::system_error`.
void ponerHistorialDeSalud(const std::string &hogar, Fecha ahora);

} // namespace ovanta
