#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqml.h>

namespace ovanta {

/// A rounded rectangle whose border may be a fraction of a pixel wide; the software renderer rounds
/// the borders of its own rectangles to whole ones.
class Marco : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY marcoChanged)
    Q_PROPERTY(QColor borde MEMBER m_borde NOTIFY marcoChanged)
    Q_PROPERTY(qreal grosor MEMBER m_grosor NOTIFY marcoChanged)
    Q_PROPERTY(qreal radio MEMBER m_radio NOTIFY marcoChanged)
public:
    explicit Marco(QQuickItem *parent = nullptr);

    void paint(QPainter *pintor) override;

Q_SIGNALS:
    void marcoChanged();

private:
    QColor m_color;
    QColor m_borde;
    qreal m_grosor = 1;
    qreal m_radio = 0;
};

} // namespace ovanta
