#pragma once

#include "core/Movimiento.h"

#include <nlohmann/json.hpp>
#include <optional>

namespace ovanta {

/// An entry as JSON: `id`, `ruta`, `bytes`, `fecha` (ISO 8601) and `regla`. JSON holds only UTF-8, so
/// where `ruta` is something else a sixth key, `rutaBytes`, gives its bytes in hexadecimal and
/// `ruta` is the text to show, with U+FFFD in the place of what is no UTF-8.
nlohmann::ordered_json aJson(const Movimiento &movimiento);

/// Reads what `aJson` gives. All five keys are required, further ones are ignored; nothing where one
/// is missing or has a wrong type.
std::optional<Movimiento> movimientoDeJson(const nlohmann::json &objeto);

} // namespace ovanta
