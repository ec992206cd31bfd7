#pragma once

#include <cstdint>
#include <string_view>

namespace ovanta {

/// How much room is left on the user's volume, from best to worst.
enum class NivelDisco { ok, aviso, critico };

/// "ok", "aviso" or "critico".
std::string_view textoNivel(NivelDisco nivel);

/// Free space at or below which a level begins, in units of 2^30 bytes. Nothing relates the two:
/// with `critico` above `aviso` the level `aviso` is never reached.
struct UmbralesDisco
{
    double aviso = 100.0;
    double critico = 50.0;
};

NivelDisco nivelDe(std::uint64_t libre, const UmbralesDisco &umbrales);

} // namespace ovanta
