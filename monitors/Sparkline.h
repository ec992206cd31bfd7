#pragma once

#include <optional>
#include <span>
#include <vector>

namespace ovanta {

/// A point of a small graph; y grows downwards from the top edge.
struct PuntoGrafica
{
    double x = 0;
    double y = 0;

    bool operator==(const PuntoGrafica &) const = default;
};

/// The line of a small graph through `valores`, the oldest first, in a box of the given size. The
/// newest value stands at the right edge. `maximo` is the value at the top; without it the largest
/// one is, and at least 1.
std::vector<PuntoGrafica> puntosSparkline(std::span<const double> valores, double ancho, double alto,
                                          std::optional<double> maximo);

} // namespace ovanta
