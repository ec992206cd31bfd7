#pragma once

#include "platform/Termico.h"

#include <optional>
#include <string_view>

namespace ovanta {

/// Temperatures at which the kernel does something about the heat of one zone, in thousandths of a
/// degree Celsius. Absent where the zone has no such point.
struct PuntosTermicos
{
    std::optional<int> pasivo;   ///< slows down
    std::optional<int> caliente; ///< warns the user
    std::optional<int> critico;  ///< turns the machine off

    bool alguno() const { return pasivo || caliente || critico; }
    /// Takes note of one trip point by its kind as the kernel names it. Of several the lowest counts;
    /// those at zero and below are not set.
    void anotar(std::string_view clase, int temperatura);
};

/// Fair from five degrees below slowing down, serious at it, critical at the warning or five degrees
/// below turning off.
EstadoTermico estadoDeZona(int temperatura, const PuntosTermicos &puntos);

} // namespace ovanta
