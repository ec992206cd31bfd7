#pragma once

#include "core/Fecha.h"

#include <string>

namespace ovanta {

/// Fills "Downloads" with what an analysis of files looks for: copies with and without hard links, files
/// that only nearly are copies, screenshots, installers, a project with its dependencies, and a
/// placeholder of a file in the cloud. Throws `std::system_error`.
void ponerDescargas(const std::string &hogar, Fecha ahora);

} // namespace ovanta
