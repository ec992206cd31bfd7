#include "ui/componentes/Muelle.h"

#include <QEasingCurve>
#include <QPointF>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

using namespace ovanta;

namespace {

QEasingCurve curvaDe(const Muelle &muelle)
{
    QEasingCurve curva(QEasingCurve::BezierSpline);
    for (qsizetype i = 0; i + 5 < muelle.curva.size(); i += 6)
        curva.addCubicBezierSegment({muelle.curva[i], muelle.curva[i + 1]},
                                    {muelle.curva[i + 2], muelle.curva[i + 3]},
                                    {muelle.curva[i + 4], muelle.curva[i + 5]});
    return curva;
}

double resorte(double respuesta, double z, double t)
{
    const double w = 2 * std::numbers::pi / respuesta;
    const double wd = w * std::sqrt(1 - z * z);
    return 1 - std::exp(-z * w * t) * (std::cos(wd * t) + z * w / wd * std::sin(wd * t));
}

} // namespace

TEST(Muelle, followsTheSpringOfItsResponseAndDamping)
{
    for (const double respuesta : {0.45, 0.35}) {
        const Muelle uno = muelle(respuesta, 0.85);
        const QEasingCurve curva = curvaDe(uno);
        for (const double parte : {0.1, 0.25, 0.4, 0.6, 0.8})
            EXPECT_NEAR(curva.valueForProgress(parte),
                        resorte(respuesta, 0.85, parte * uno.milisegundos / 1000.0), 0.01)
                << parte;
    }
}

TEST(Muelle, startsAtRestAndEndsExactlyThere)
{
    const Muelle uno = muelle(0.45, 0.85);
    ASSERT_EQ(uno.curva.size() % 6, 0);
    EXPECT_EQ(uno.curva[uno.curva.size() - 2], 1.0);
    EXPECT_EQ(uno.curva.last(), 1.0);
    EXPECT_NEAR(curvaDe(uno).valueForProgress(0), 0, 1e-6);
}

TEST(Muelle, aShorterResponseTakesLess)
{
    EXPECT_LT(muelle(0.35, 0.85).milisegundos, muelle(0.45, 0.85).milisegundos);
    EXPECT_NEAR(muelle(0.45, 0.85).milisegundos, 446, 1);
}
