#include "ui/componentes/IconoAplicacion.h"

#include <QFileInfo>
#include <QIcon>
#include <QImageReader>
#include <QPainter>
#include <QQuickWindow>

namespace ovanta {

namespace {

/// A picture that fits into the square. Only regular files: anything else may never answer.
QImage deArchivo(const QString &ruta, QSize tamano)
{
    if (!QFileInfo(ruta).isFile()) return {};
    QImageReader lector(ruta);
    lector.setScaledSize(lector.size().isValid() ? lector.size().scaled(tamano, Qt::KeepAspectRatio)
                                                 : tamano);
    return lector.read();
}

QImage deTema(const QString &nombre, QSize tamano)
{
    return QIcon::fromTheme(nombre).pixmap(tamano).toImage();
}

} // namespace

IconoAplicacion::IconoAplicacion(QQuickItem *parent) : QQuickPaintedItem(parent) {}

void IconoAplicacion::fijarIcono(const QString &icono)
{
    if (m_icono == icono) return;
    m_icono = icono;
    Q_EMIT iconoChanged();
    pedir();
}

void IconoAplicacion::geometryChange(const QRectF &nueva, const QRectF &vieja)
{
    QQuickPaintedItem::geometryChange(nueva, vieja);
    if (nueva.size() != vieja.size()) pedir();
}

void IconoAplicacion::pedir()
{
    if (std::exchange(m_pedida, true)) return;
    QMetaObject::invokeMethod(this, &IconoAplicacion::buscar, Qt::QueuedConnection);
}

void IconoAplicacion::buscar()
{
    m_pedida = false;
    const bool habia = hay();
    const qreal escala = window() ? window()->effectiveDevicePixelRatio() : 1.0;
    const QSize tamano = (size() * escala).toSize();
    m_imagen = {};
    if (!m_icono.isEmpty() && !tamano.isEmpty())
        m_imagen =
            m_icono.startsWith(QLatin1Char('/')) ? deArchivo(m_icono, tamano) : deTema(m_icono, tamano);
    if (hay() != habia) Q_EMIT hayChanged();
    update();
}

void IconoAplicacion::paint(QPainter *pintor)
{
    if (m_imagen.isNull()) return;
    const QSizeF justa = QSizeF(m_imagen.size()).scaled(size(), Qt::KeepAspectRatio);
    const QPointF esquina((width() - justa.width()) / 2, (height() - justa.height()) / 2);
    pintor->setRenderHint(QPainter::SmoothPixmapTransform);
    pintor->drawImage(QRectF(esquina, justa), m_imagen);
}

} // namespace ovanta
