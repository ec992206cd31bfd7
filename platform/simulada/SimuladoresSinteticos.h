#pragma once

#include "core/Fecha.h"

#include <string>
#include <vector>

namespace ovanta {

/// Makes the folders of the simulated Mac's iOS simulators below `hogar`, each as old as its simulator
/// is at `ahora`. Throws `std::system_error`.
void ponerSimuladores(const std::string &hogar, Fecha ahora);

/// What `xcrun` answers on the simulated Mac: it lists those simulators and fails at anything else.
/// Throws `ShellError`.
std::string responderXcrun(const std::vector<std::string> &args);

} // namespace ovanta
