#pragma once

#include "core/Seguridad.h"

#include <expected>
#include <functional>
#include <string>
#include <vector>

namespace ovanta {

/// Whether an application with this identifier is running.
using EnEjecucion = std::function<bool(const std::string &bundleID)>;

/// What uninstalling an application moves: itself first, then those of `restos` that belong to it,
/// each once. A text for the user where it must not be uninstalled or is running.
std::expected<std::vector<std::string>, std::string>
planDeDesinstalacion(const Seguridad &seguridad, const EnEjecucion &enEjecucion, const std::string &ruta,
                     const std::string &bundleID, const std::vector<std::string> &restos);

} // namespace ovanta
