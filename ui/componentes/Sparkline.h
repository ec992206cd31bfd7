#pragma once

#include <QColor>
#include <QList>
#include <QQuickPaintedItem>
#include <QtQml/qqml.h>
#include <optional>

namespace ovanta {

/// A small graph of a history, the newest value at the right edge.
class Sparkline : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QList<double> valores MEMBER m_valores NOTIFY graficaChanged)
    /// The value at the top. Without it, 0 for the reader, the largest value is, and at least 1.
    Q_PROPERTY(double maximo READ maximo WRITE fijarMaximo RESET quitarMaximo NOTIFY graficaChanged)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY graficaChanged)
    Q_PROPERTY(bool relleno MEMBER m_relleno NOTIFY graficaChanged)
public:
    explicit Sparkline(QQuickItem *parent = nullptr);

    double maximo() const { return m_maximo.value_or(0); }
    void fijarMaximo(double maximo);
    void quitarMaximo();

    void paint(QPainter *pintor) override;

Q_SIGNALS:
    void graficaChanged();

private:
    QList<double> m_valores;
    std::optional<double> m_maximo;
    QColor m_color;
    bool m_relleno = false;
};

} // namespace ovanta
