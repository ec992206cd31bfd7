#include "ui/componentes/Anillo.h"

#include <QPainter>
#include <algorithm>

namespace ovanta {

namespace {

// QPainter counts sixteenths of a degree, counter-clockwise from three o'clock.
constexpr int arriba = 90 * 16;
constexpr int vuelta = 360 * 16;

} // namespace

Anillo::Anillo(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    connect(this, &Anillo::anilloChanged, this, [this] { update(); });
}

void Anillo::paint(QPainter *pintor)
{
    pintor->setRenderHint(QPainter::Antialiasing);
    const QRectF borde = boundingRect().adjusted(m_grosor / 2, m_grosor / 2, -m_grosor / 2, -m_grosor / 2);
    pintor->setPen(QPen(m_pista, m_grosor));
    pintor->drawEllipse(borde);

    const qreal valor = std::clamp(m_valor, 0.0, 1.0);
    if (valor <= 0) return;
    pintor->setPen(QPen(m_color, m_grosor, Qt::SolidLine, Qt::RoundCap));
    pintor->drawArc(borde, arriba, -static_cast<int>(vuelta * valor));
}

} // namespace ovanta
