#pragma once

#include <string_view>

namespace ovanta {

/// Writes all of `texto` to an open file; throws std::system_error.
void volcar(int fd, std::string_view texto);

} // namespace ovanta
