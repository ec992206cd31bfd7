#pragma once

#include <expected>
#include <string>
#include <sys/types.h>

namespace ovanta {

enum class UltimoEnlace { seguir, describir };

struct FinalDeCamino
{
    /// Where the walk ended: absolute, without links (but for a final one that was not followed).
    std::string ruta;
    /// `st_mode` of what is there.
    mode_t modo = 0;
};

/// Walks an absolute path one component at a time, so that it may be longer than the system's own
/// calls take. Slower than them: for the paths that they refuse with ENAMETOOLONG.
/// Gives the errno of the first component that could not be passed.
std::expected<FinalDeCamino, int> andarCaminoLargo(const std::string &ruta, UltimoEnlace ultimo);

} // namespace ovanta
