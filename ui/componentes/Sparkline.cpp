#include "ui/componentes/Sparkline.h"

#include "app/PintarSparkline.h"

#include <QPainter>

namespace ovanta {

Sparkline::Sparkline(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    connect(this, &Sparkline::graficaChanged, this, [this] { update(); });
}

void Sparkline::fijarMaximo(double maximo)
{
    if (m_maximo == maximo) return;
    m_maximo = maximo;
    Q_EMIT graficaChanged();
}

void Sparkline::quitarMaximo()
{
    if (!m_maximo) return;
    m_maximo.reset();
    Q_EMIT graficaChanged();
}

void Sparkline::paint(QPainter *pintor)
{
    pintor->setRenderHint(QPainter::Antialiasing);
    pintarSparkline(*pintor, boundingRect(), m_valores, {m_maximo, m_color, m_relleno});
}

} // namespace ovanta
