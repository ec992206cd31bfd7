#include "ui/PosicionPanel.h"

#include <algorithm>
#include <array>

namespace ovanta {

namespace {

enum class Borde { arriba, abajo, izquierda, derecha };

/// The square of how far a point lies outside of a rectangle.
qint64 distancia(const QRect &rect, QPoint punto)
{
    const qint64 dx = std::max({rect.left() - punto.x(), 0, punto.x() - rect.right()});
    const qint64 dy = std::max({rect.top() - punto.y(), 0, punto.y() - rect.bottom()});
    return dx * dx + dy * dy;
}

/// The edge whose bar holds the icon; for a bar that hides itself, and so takes no room, the nearest.
Borde bordeDe(QPoint icono, const PantallaDelPanel &pantalla)
{
    if (icono.y() < pantalla.disponible.top()) return Borde::arriba;
    if (icono.y() > pantalla.disponible.bottom()) return Borde::abajo;
    if (icono.x() < pantalla.disponible.left()) return Borde::izquierda;
    if (icono.x() > pantalla.disponible.right()) return Borde::derecha;
    const QRect &total = pantalla.total;
    const std::array lejos{icono.y() - total.top(), total.bottom() - icono.y(), icono.x() - total.left(),
                           total.right() - icono.x()};
    return static_cast<Borde>(std::ranges::min_element(lejos) - lejos.begin());
}

QPoint juntoAlIcono(QSize panel, const QRect &icono, Borde borde, int separacion)
{
    const QPoint centrado = icono.center() - QPoint(panel.width() / 2, panel.height() / 2);
    switch (borde) {
    case Borde::arriba:
        return {centrado.x(), icono.bottom() + 1 + separacion};
    case Borde::abajo:
        return {centrado.x(), icono.top() - separacion - panel.height()};
    case Borde::izquierda:
        return {icono.right() + 1 + separacion, centrado.y()};
    case Borde::derecha:
        return {icono.left() - separacion - panel.width(), centrado.y()};
    }
    Q_UNREACHABLE();
}

QPoint dentro(QPoint posicion, QSize panel, const QRect &area)
{
    const int x = std::min(posicion.x(), area.right() + 1 - panel.width());
    const int y = std::min(posicion.y(), area.bottom() + 1 - panel.height());
    return {std::max(x, area.left()), std::max(y, area.top())};
}

bool lugarConocido(const QRect &icono, const PantallaDelPanel &pantalla)
{
    return !icono.isEmpty() && pantalla.total.contains(icono.center());
}

} // namespace

PantallaDelPanel pantallaDelPanel(const QRect &icono, QPoint puntero,
                                  const QList<PantallaDelPanel> &pantallas)
{
    for (const PantallaDelPanel &pantalla : pantallas)
        if (lugarConocido(icono, pantalla)) return pantalla;
    return *std::ranges::min_element(pantallas, {}, [puntero](const PantallaDelPanel &pantalla) {
        return distancia(pantalla.total, puntero);
    });
}

QPoint posicionPanel(QSize panel, const QRect &icono, QPoint puntero, const PantallaDelPanel &pantalla,
                     int separacion)
{
    const QRect area = pantalla.disponible.adjusted(separacion, separacion, -separacion, -separacion);
    if (lugarConocido(icono, pantalla))
        return dentro(juntoAlIcono(panel, icono, bordeDe(icono.center(), pantalla), separacion), panel, area);
    const QPoint centro = pantalla.total.center();
    const QPoint esquina(puntero.x() < centro.x() ? area.left() : area.right() + 1 - panel.width(),
                         puntero.y() < centro.y() ? area.top() : area.bottom() + 1 - panel.height());
    return dentro(esquina, panel, area);
}

} // namespace ovanta
