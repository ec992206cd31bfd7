#pragma once

#include <QQuickPaintedItem>
#include <QUrl>
#include <QtQml/qqml.h>

namespace ovanta {

/// A local SVG picture, sharp at every size. Nothing of it is kept beyond the item, which the picture
/// cache of Qt Quick would do.
class ImagenVectorial : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QUrl fuente MEMBER m_fuente NOTIFY fuenteChanged)
public:
    explicit ImagenVectorial(QQuickItem *parent = nullptr);

    void paint(QPainter *pintor) override;

Q_SIGNALS:
    void fuenteChanged();

private:
    QUrl m_fuente;
};

} // namespace ovanta
