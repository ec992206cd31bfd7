#pragma once

#include "analysis/ArchivoHallado.h"
#include "analysis/BanderaCancelacion.h"
#include "platform/Herramientas.h"
#include "platform/Lugares.h"

#include <string>
#include <vector>

namespace ovanta {

/// Finds the heavy folders that tools make again ("node_modules", ".venv", "venv", "target", ".next",
/// "build"), down to six levels below home, and measures them; biggest first. A folder inside one of
/// them is not told apart, and what lies in the Trash is left out. Empty where it was stopped or the search
/// failed; where measuring fails, those folders are missing. Blocking; background threads only.
std::vector<CarpetaPesada> buscarCarpetas(Herramientas &herramientas, const Lugares &lugares,
                                          const BanderaCancelacion *cancelacion);

} // namespace ovanta
