#include "ui/componentes/Marco.h"

#include <QPainter>

namespace ovanta {

Marco::Marco(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    connect(this, &Marco::marcoChanged, this, [this] { update(); });
}

void Marco::paint(QPainter *pintor)
{
    const qreal medio = m_grosor / 2;
    pintor->setRenderHint(QPainter::Antialiasing);
    pintor->setPen(QPen(m_borde, m_grosor));
    pintor->setBrush(m_color);
    pintor->drawRoundedRect(boundingRect().adjusted(medio, medio, -medio, -medio), m_radio - medio,
                            m_radio - medio);
}

} // namespace ovanta
