#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <string_view>

namespace ovanta {

/// Reads JSON that somebody else may have written. Nothing where it is no valid JSON in UTF-8, an
/// object has a key twice, or values nest deeper than `profundidad`. Time and memory are linear in
/// the length of `texto`.
std::optional<nlohmann::json> leerJson(std::string_view texto, int profundidad = 16);

} // namespace ovanta
