#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqml.h>

namespace ovanta {

/// A ring that is filled clockwise from the top. Drawn by hand, as the software renderer has no arcs.
class Anillo : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT

    /// How much is filled, 0 to 1; values outside count as the nearest end.
    Q_PROPERTY(qreal valor MEMBER m_valor NOTIFY anilloChanged)
    Q_PROPERTY(qreal grosor MEMBER m_grosor NOTIFY anilloChanged)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY anilloChanged)
    Q_PROPERTY(QColor pista MEMBER m_pista NOTIFY anilloChanged)
public:
    explicit Anillo(QQuickItem *parent = nullptr);

    void paint(QPainter *pintor) override;

Q_SIGNALS:
    void anilloChanged();

private:
    qreal m_valor = 0;
    qreal m_grosor = 12;
    QColor m_color;
    QColor m_pista;
};

} // namespace ovanta
