#pragma once

#include "core/Movimiento.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ovanta {

/// How many entries the history keeps.
inline constexpr std::size_t maximoHistorial = 500;

/// The largest history file that is read: 500 of the longest paths there can be stay well below.
inline constexpr std::uint64_t limiteHistorial = 32 * 1024 * 1024;

/// Puts a batch at the front, keeps the order inside it, and drops what falls off the end.
void anteponer(std::vector<Movimiento> &historial, std::vector<Movimiento> lote);

/// The bytes of the history file: an indented JSON array, always valid UTF-8.
std::string codificarHistorial(const std::vector<Movimiento> &historial);

/// Reads what `codificarHistorial` wrote, at most `maximoHistorial` entries. There is no partial
/// history: bytes of any other shape give an empty one.
std::vector<Movimiento> decodificarHistorial(std::string_view bytes);

/// The history in a file; empty where it cannot be read. Never waits for a FIFO.
std::vector<Movimiento> cargarHistorial(const std::string &archivo);

} // namespace ovanta
