#include "ui/componentes/ImagenVectorial.h"

#include <QPainter>
#include <QQmlFile>
#include <QSvgRenderer>

namespace ovanta {

ImagenVectorial::ImagenVectorial(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    connect(this, &ImagenVectorial::fuenteChanged, this, [this] { update(); });
}

void ImagenVectorial::paint(QPainter *pintor)
{
    if (m_fuente.isEmpty()) return;
    QSvgRenderer dibujo(QQmlFile::urlToLocalFileOrQrc(m_fuente));
    pintor->setRenderHint(QPainter::Antialiasing);
    dibujo.render(pintor, boundingRect());
}

} // namespace ovanta
