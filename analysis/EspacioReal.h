#pragma once

#include "platform/AccesoArchivos.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ovanta {

/// The bytes on the disk that go when these files go for good: a file with further names that are not
/// among them frees nothing, holes take no place, and blocks that a clone shares stay. Folders count as
/// nothing here. Asks the file system; any thread.
std::uint64_t espacioReal(const std::vector<std::string> &rutas, AccesoArchivos &acceso);

} // namespace ovanta
