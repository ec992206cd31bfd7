#include "ui/componentes/Rango.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace ovanta;

namespace {

constexpr Rango minimo{.desde = 0.1, .hasta = 50.0, .paso = 0.9};
constexpr Rango umbral{.desde = 20, .hasta = 400, .paso = 10};
constexpr Rango dias{.desde = 7, .hasta = 365, .paso = 7, .rejilla = false};

} // namespace

TEST(Rango, theLeastSizeGoesOneTenthOneOnePointNineTwoPointEight)
{
    double valor = minimo.desde;
    for (const double siguiente : {1.0, 1.9, 2.8, 3.7}) {
        valor = minimo.mover(valor, 1);
        EXPECT_EQ(valor, siguiente);
    }
    EXPECT_EQ(minimo.ultimo(), 49.6) << "50.0 is no step of the way";
    EXPECT_EQ(minimo.mover(minimo.ultimo(), 1), 49.6);
    EXPECT_EQ(minimo.ajustar(50.0), 49.6);
    EXPECT_EQ(minimo.ajustar(1.0), 1.0);
}

TEST(Rango, everyStepThereAndBackMeetsTheSameNumbers)
{
    for (int i = 0; i < 55; ++i) {
        const double valor = minimo.ajustar(0.1 + i * 0.9);
        EXPECT_EQ(minimo.mover(minimo.mover(valor, 1), -1), valor);
        EXPECT_EQ(minimo.ajustar(valor), valor);
    }
}

TEST(Rango, aNumberOffTheGridGoesToTheNextOneOnIt)
{
    EXPECT_EQ(umbral.mover(105.5, 1), 110);
    EXPECT_EQ(umbral.mover(105.5, -1), 100);
    EXPECT_EQ(umbral.mover(105.5, 5), 150);
    EXPECT_EQ(umbral.mover(1000, -1), 400);
    EXPECT_EQ(umbral.mover(-3, 1), 20);
    EXPECT_EQ(umbral.ajustar(104.9), 100);
}

TEST(Rango, aStepperGoesOnFromWhereItStands)
{
    EXPECT_EQ(dias.mover(90, 1), 97);
    EXPECT_EQ(dias.mover(90, -1), 83);
    EXPECT_EQ(dias.mover(363, 1), 365);
    EXPECT_EQ(dias.mover(9, -1), 7);
    EXPECT_EQ(dias.ultimo(), 365);
}

TEST(Rango, whatIsNoNumberLandsAtTheStart)
{
    const double nada = std::nan("");
    const double infinito = std::numeric_limits<double>::infinity();
    for (const Rango &rango : {minimo, umbral, dias}) {
        EXPECT_EQ(rango.ajustar(nada), rango.desde);
        EXPECT_EQ(rango.mover(nada, 1), rango.desde);
        EXPECT_EQ(rango.fraccion(nada), 0.0);
        EXPECT_EQ(rango.ajustar(infinito), rango.ultimo());
        EXPECT_EQ(rango.mover(-infinito, 1), rango.desde);
        EXPECT_EQ(rango.fraccion(infinito), 1.0);
    }
}
