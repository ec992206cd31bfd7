#pragma once

#include <string>

namespace ovanta {

/// The folder that holds the program's own files: "Library/Application Support/Ovanta" in `hogar`,
/// on every platform. Each call makes it, with the folders above it, with the permissions 0700;
/// a failure to do so is ignored. Any thread.
std::string carpetaDatos(const std::string &hogar);

} // namespace ovanta
