#pragma once

#include <QColor>
#include <QRectF>
#include <optional>
#include <span>

class QPainter;

namespace ovanta {

struct EstiloSparkline
{
    std::optional<double> maximo; ///< value at the top; see `puntosSparkline`
    QColor color;
    bool relleno = false;
};

/// Draws a small graph of `valores` into `caja`: its line, and below it a lighter area where
/// `relleno` says so. Nothing without values.
void pintarSparkline(QPainter &pintor, const QRectF &caja, std::span<const double> valores,
                     const EstiloSparkline &estilo);

} // namespace ovanta
