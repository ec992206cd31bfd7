#pragma once

#include <QImage>
#include <QQuickPaintedItem>
#include <QtQml/qqml.h>

namespace ovanta {

/// The icon of an application: a picture by its absolute path, or a name in the desktop's icon theme.
/// It is fetched in an event of its own, so that many of them do not hold the window up together.
class IconoAplicacion : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QString icono READ icono WRITE fijarIcono NOTIFY iconoChanged)
    /// Whether there is a picture to show; where not, something else must stand for it.
    Q_PROPERTY(bool hay READ hay NOTIFY hayChanged)
public:
    explicit IconoAplicacion(QQuickItem *parent = nullptr);

    QString icono() const { return m_icono; }
    void fijarIcono(const QString &icono);
    bool hay() const { return !m_imagen.isNull(); }

    void paint(QPainter *pintor) override;

Q_SIGNALS:
    void iconoChanged();
    void hayChanged();

protected:
    void geometryChange(const QRectF &nueva, const QRectF &vieja) override;

private:
    void pedir();
    void buscar();

    QString m_icono;
    QImage m_imagen;
    bool m_pedida = false;
};

} // namespace ovanta
