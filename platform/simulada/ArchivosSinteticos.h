#pragma once

#include "core/Fecha.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace ovanta {

inline constexpr std::uint64_t kib = 1024;

// Making the files of a synthetic home. Missing folders on the way appear. All of these throw
// std::system_error.

void escribirTexto(const std::string &ruta, std::string_view texto);

/// A file of `bytes` that takes up real blocks, so that disk usage counts it, without writing them.
void reservarArchivo(const std::string &ruta, std::uint64_t bytes);

/// Puts a text into a file that is there, at a place within it.
void escribirEn(const std::string &ruta, std::uint64_t posicion, std::string_view texto);

/// Sets when an item, or a link itself, was last read and changed.
void fechar(const std::string &ruta, Fecha fecha);

} // namespace ovanta
