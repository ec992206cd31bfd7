#pragma once

#include "core/Regla.h"
#include "core/Seguridad.h"

#include <optional>
#include <string>
#include <vector>

namespace ovanta {

/// What cleaning a rule would move.
struct Previsualizacion
{
    std::vector<std::string> rutas;
    std::optional<std::string> error; ///< a text for the user

    bool operator==(const Previsualizacion &) const = default;
};

/// Looks at a rule without moving anything: the item itself where `mode` is "self" or it is no
/// folder, else the folder's direct entries that may be moved, in the order the system gives them.
/// A rule whose path is absent gives neither paths nor an error. Blocking; any thread.
Previsualizacion previsualizar(const Seguridad &seguridad, const Regla &regla);

} // namespace ovanta
