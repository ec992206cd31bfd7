#pragma once

#include <QList>
#include <QRect>

namespace ovanta {

/// A screen in the desktop's coordinates, and what of it no bar covers.
struct PantallaDelPanel
{
    QRect total;
    QRect disponible;
};

/// The screen on which the panel opens: that of the status icon where its place is known (not empty and
/// on a screen), else the one with or nearest to the pointer. `pantallas` must not be empty.
PantallaDelPanel pantallaDelPanel(const QRect &icono, QPoint puntero,
                                  const QList<PantallaDelPanel> &pantallas);

/// Where a panel of this size goes on its screen: beside the icon, away from the screen's edge that the
/// icon's bar lies at and `separacion` from it; without a known icon into the corner of the available
/// area nearest to the pointer. Always wholly inside that area; what is too large for it keeps its
/// upper left corner.
QPoint posicionPanel(QSize panel, const QRect &icono, QPoint puntero, const PantallaDelPanel &pantalla,
                     int separacion);

} // namespace ovanta
