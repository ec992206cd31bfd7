#include "app/PintarSparkline.h"

#include "monitors/Sparkline.h"

#include <QPainter>

namespace ovanta {

namespace {

constexpr double anchoLinea = 1.2;
constexpr double opacidadRelleno = 0.25;

} // namespace

void pintarSparkline(QPainter &pintor, const QRectF &caja, std::span<const double> valores,
                     const EstiloSparkline &estilo)
{
    QPolygonF linea;
    for (const PuntoGrafica &punto : puntosSparkline(valores, caja.width(), caja.height(), estilo.maximo))
        linea << caja.topLeft() + QPointF(punto.x, punto.y);
    if (linea.isEmpty()) return;
    pintor.save();
    if (estilo.relleno) {
        QPolygonF area = linea;
        area << QPointF(linea.last().x(), caja.bottom()) << QPointF(linea.first().x(), caja.bottom());
        QColor claro = estilo.color;
        claro.setAlphaF(static_cast<float>(claro.alphaF() * opacidadRelleno));
        pintor.setPen(Qt::NoPen);
        pintor.setBrush(claro);
        pintor.drawPolygon(area);
    }
    pintor.setBrush(Qt::NoBrush);
    pintor.setPen(QPen(estilo.color, anchoLinea, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    pintor.drawPolyline(linea);
    pintor.restore();
}

} // namespace ovanta
