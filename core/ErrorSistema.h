#pragma once

#include <string>

namespace ovanta {

/// What an `errno` value means, in Spanish words that can be shown to the user as they stand:
/// one sentence without a final full stop, for example "no tienes permiso". A value that is not
/// listed gives "error del sistema" and its number. The only place where errno becomes text.
std::string textoErrno(int codigo);

/// Throws the `std::system_error` whose what() is `textoErrno`; it compares equal to `std::errc`.
[[noreturn]] void lanzarErrno(int codigo);

} // namespace ovanta
