#pragma once

#include "app/EtiquetaBarra.h"

#include <QColor>
#include <QImage>
#include <optional>

namespace ovanta {

/// Pixels a point of the main screen; 2 where there is no screen.
double escalaDePantalla();

/// Draws a label in its natural size: a template in black on nothing, for the bar to colour. Nothing
/// where no picture of that size can be made.
std::optional<QImage> imagenBarra(const EtiquetaBarra &etiqueta, double escala = escalaDePantalla());

/// A template in one colour.
QImage tenir(QImage plantilla, const QColor &color);

} // namespace ovanta
