#pragma once

#include "core/Fecha.h"

#include <string>

namespace ovanta {

/// Puts into `hogar` what a Mac's home has besides caches: documents, downloads, applications with
/// their traces, projects, Xcode's folders. Throws `std::system_error`.
void ponerMuebles(const std::string &hogar, Fecha ahora);

} // namespace ovanta
