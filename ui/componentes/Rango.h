#pragma once

#include <QObject>
#include <QtQml/qqml.h>

namespace ovanta {

/// The numbers that a slider or a stepper can be set to.
struct Rango
{
    Q_GADGET
    QML_VALUE_TYPE(rango)

    Q_PROPERTY(double desde MEMBER desde CONSTANT FINAL)
    Q_PROPERTY(double hasta MEMBER hasta CONSTANT FINAL)
    Q_PROPERTY(double paso MEMBER paso CONSTANT FINAL)
public:
    double desde = 0;
    double hasta = 1;
    double paso = 1;
    /// Whether only `desde` and whole steps from it count, and not every number in between.
    bool rejilla = true;

    /// The number of the range nearest to this one; `desde` for one that is no number.
    Q_INVOKABLE double ajustar(double valor) const;
    /// So many steps further up, or down where negative; never beyond the ends. On a grid, a number
    /// that does not lie on it goes to the next one that does.
    Q_INVOKABLE double mover(double valor, int pasos) const;
    /// The greatest number of the range.
    Q_INVOKABLE double ultimo() const;
    /// Where the number lies, from 0 to 1.
    Q_INVOKABLE double fraccion(double valor) const;

    bool operator==(const Rango &) const = default;

private:
    double enPaso(double pasos) const;
};

} // namespace ovanta
