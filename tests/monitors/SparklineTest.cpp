#include "monitors/Sparkline.h"

#include <gmock/gmock.h>

using namespace ovanta;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::vector<PuntoGrafica> puntos(const std::vector<double> &valores, std::optional<double> maximo = {})
{
    return puntosSparkline(valores, 100, 20, maximo);
}

} // namespace

TEST(Sparkline, withoutValuesThereAreNoPoints)
{
    EXPECT_THAT(puntos({}), IsEmpty());
    EXPECT_THAT(puntos({}, 1.0), IsEmpty());
}

TEST(Sparkline, aSingleValueStandsAtTheRightEdge)
{
    EXPECT_THAT(puntos({0.5}), ElementsAre(PuntoGrafica{100, 10}));
}

TEST(Sparkline, valuesAllZeroAreAFlatLineAlongTheBottom)
{
    EXPECT_THAT(puntos({0, 0, 0}),
                ElementsAre(PuntoGrafica{0, 20}, PuntoGrafica{50, 20}, PuntoGrafica{100, 20}));
}

TEST(Sparkline, aGivenMaximumIsTheTopAndWhatExceedsItIsCutOff)
{
    EXPECT_THAT(puntos({1, 2, 8}, 4.0),
                ElementsAre(PuntoGrafica{0, 15}, PuntoGrafica{50, 10}, PuntoGrafica{100, 0}));
}

TEST(Sparkline, withoutAMaximumTheLargestValueIsTheTop)
{
    EXPECT_THAT(puntos({2, 8, 4}),
                ElementsAre(PuntoGrafica{0, 15}, PuntoGrafica{50, 0}, PuntoGrafica{100, 10}));
}

TEST(Sparkline, smallValuesAreNotBlownUpBeyondOne)
{
    EXPECT_THAT(puntos({0.25, 0.5}), ElementsAre(PuntoGrafica{0, 15}, PuntoGrafica{100, 10}));
}
