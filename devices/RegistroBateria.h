#pragma once

#include "devices/ConexionIOS.h"

namespace ovanta {

/// Asks the diagnostics relay at the other end for the battery's entry in the IORegistry, and takes leave
/// of it. `protocolo` with the relay's `Status` where there is none.
std::expected<DiccionarioPlist, ErrorIOS> pedirRegistroBateria(ConexionIOS &conexion);

} // namespace ovanta
