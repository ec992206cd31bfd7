#pragma once

#include <QList>

namespace ovanta {

/// A spring given by its response (period of the free oscillation, seconds) and damping fraction, as
/// an animation that any easing can run: how long it takes to come to rest, and its way there as the
/// control points of an `Easing.BezierSpline`.
///
/// The way is the step response of a damped oscillator, x(t) = 1 - e^(-zwt)(cos wd t + (zw/wd) sin wd t)
/// with w = 2 pi / response, z the damping and wd = w sqrt(1 - z^2); it rests where e^(-zwt) falls
/// below a two-hundredth.
struct Muelle
{
    int milisegundos;
    QList<qreal> curva;
};

/// `amortiguacion` lies between 0 and 1, both excluded.
Muelle muelle(double respuesta, double amortiguacion);

} // namespace ovanta
