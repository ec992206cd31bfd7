#include "platform/linux/CombinarBaterias.h"

#include <gtest/gtest.h>
#include <limits>

using namespace ovanta;

namespace {

LecturaBateria descargando(double contenido, double lleno, double ritmo = 0)
{
    LecturaBateria una;
    una.contenido = contenido;
    una.lleno = lleno;
    una.ritmo = ritmo;
    una.descargando = true;
    return una;
}

} // namespace

TEST(CombinarBaterias, withoutABatteryThereIsNothing)
{
    EXPECT_EQ(combinarBaterias({{}, true}), std::nullopt);
    EXPECT_EQ(combinarBaterias({{LecturaBateria{}}, true}), std::nullopt) << "one that tells no charge";
}

TEST(CombinarBaterias, aSingleOneKnowsItsOwnChargeAndTime)
{
    LecturaBateria una = descargando(30, 50, 10);
    EXPECT_EQ(combinarBaterias({{una}, false})->porcentaje, 60);
    EXPECT_EQ(combinarBaterias({{una}, false})->minutosRestantes, 180);
    una.porcentaje = 57.9;
    una.segundos = 5'999;
    EXPECT_EQ(combinarBaterias({{una}, false})->porcentaje, 57);
    EXPECT_EQ(combinarBaterias({{una}, false})->minutosRestantes, 99);
}

TEST(CombinarBaterias, twoCountByWhatTheyHoldTogether)
{
    LecturaBateria interna = descargando(20, 20);
    interna.porcentaje = 100;
    interna.descargando = false;
    interna.deFabrica = 25;
    interna.ciclos = 100;
    LecturaBateria externa = descargando(10, 60, 15);
    externa.porcentaje = 16;
    externa.segundos = 2400;
    externa.deFabrica = 75;
    externa.ciclos = 350;
    const auto estado = combinarBaterias({{interna, externa}, false});
    ASSERT_TRUE(estado);
    EXPECT_EQ(estado->porcentaje, 37);
    EXPECT_EQ(estado->minutosRestantes, 120) << "the full one follows when the other is empty";
    EXPECT_EQ(estado->salud, 80);
    EXPECT_EQ(estado->ciclos, 350);
    EXPECT_FALSE(estado->cargando);
}

TEST(CombinarBaterias, whereOneDoesNotTellWhatItHoldsTheMeanCounts)
{
    LecturaBateria una = descargando(30, 50);
    una.porcentaje = 60;
    LecturaBateria otra;
    otra.porcentaje = 21;
    EXPECT_EQ(combinarBaterias({{una, otra}, false})->porcentaje, 40);
    EXPECT_EQ(combinarBaterias({{una, otra}, false})->salud, std::nullopt);
}

TEST(CombinarBaterias, onMainsThereIsNoTimeLeft)
{
    const auto estado = combinarBaterias({{descargando(30, 50, 10)}, true});
    EXPECT_TRUE(estado->enCorriente);
    EXPECT_EQ(estado->minutosRestantes, std::nullopt);
}

TEST(CombinarBaterias, withoutAnyWordOnMainsTheBatteriesTell)
{
    LecturaBateria una = descargando(30, 50);
    EXPECT_FALSE(combinarBaterias({{una}, {}})->enCorriente);
    una.descargando = false;
    EXPECT_TRUE(combinarBaterias({{una}, {}})->enCorriente);
}

TEST(CombinarBaterias, lessThanAMinuteAndMoreThanTenDaysAreNoForecast)
{
    EXPECT_EQ(combinarBaterias({{descargando(0.1, 50, 10)}, false})->minutosRestantes, std::nullopt);
    EXPECT_EQ(combinarBaterias({{descargando(50, 50, 1e-9)}, false})->minutosRestantes, std::nullopt);
    EXPECT_EQ(combinarBaterias({{descargando(50, 50, 0)}, false})->minutosRestantes, std::nullopt);
}

TEST(CombinarBaterias, figuresBeyondReasonStayInTheirBounds)
{
    LecturaBateria una = descargando(90, 50);
    una.deFabrica = 40;
    EXPECT_EQ(combinarBaterias({{una}, false})->porcentaje, 100);
    EXPECT_EQ(combinarBaterias({{una}, false})->salud, 100);
    una.porcentaje = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(combinarBaterias({{una}, false})->porcentaje, 0);
    una.porcentaje = -3;
    EXPECT_EQ(combinarBaterias({{una}, false})->porcentaje, 0);
}
