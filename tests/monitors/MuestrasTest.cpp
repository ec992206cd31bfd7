#include "monitors/Muestras.h"

#include <gtest/gtest.h>
#include <limits>

using namespace ovanta;
using namespace std::chrono_literals;

namespace {

VelocidadRed velocidad(Contadores::Red antes, Contadores::Red ahora, std::chrono::microseconds tiempo)
{
    const Fecha inicio{1'000'000s};
    return velocidadEntre({antes, inicio}, {ahora, inicio + tiempo});
}

} // namespace

TEST(Historial, oneOfExactlyThirtyValuesTakesTheNextAndStaysAtThirty)
{
    std::vector<double> historial;
    for (int i = 0; i < 30; ++i)
        empujar(historial, i);
    ASSERT_EQ(historial.size(), 30);
    empujar(historial, 30);
    EXPECT_EQ(historial.size(), 30);
    EXPECT_EQ(historial.front(), 1);
    EXPECT_EQ(historial.back(), 30);
}

TEST(CargaProcesador, isTheShareOfTheTimeThatWasUsed)
{
    const TicksUso antes = ticksUso({.user = 100, .system = 50, .idle = 800, .nice = 50});
    EXPECT_EQ(antes.uso, 200);
    EXPECT_EQ(antes.total, 1000);
    const TicksUso ahora = ticksUso({.user = 110, .system = 55, .idle = 875, .nice = 60});
    EXPECT_DOUBLE_EQ(*cargaEntre(antes, ahora), 0.25);
}

TEST(CargaProcesador, isUnknownWhereNoTimePassedOrTheCountersWentBack)
{
    EXPECT_EQ(cargaEntre({200, 1000}, {200, 1000}), std::nullopt);
    EXPECT_EQ(cargaEntre({200, 1000}, {150, 900}), std::nullopt);
}

TEST(CargaProcesador, staysBetweenNothingAndAll)
{
    EXPECT_EQ(cargaEntre({200, 1000}, {400, 1100}), 1.0) << "an idle counter went back";
    EXPECT_EQ(cargaEntre({200, 1000}, {190, 1100}), 0.0) << "a used one went back";
}

TEST(FraccionRAM, isTakenOverPhysicalMemory)
{
    EXPECT_DOUBLE_EQ(fraccionRAM(Contadores::Memoria{4, 2, 1, 14}), 0.5);
    EXPECT_EQ(fraccionRAM(Contadores::Memoria{16, 2, 1, 14}), 1.0);
}

TEST(FraccionRAM, isZeroWhereNothingIsKnown)
{
    EXPECT_EQ(fraccionRAM(std::nullopt), 0.0);
    EXPECT_EQ(fraccionRAM(Contadores::Memoria{4, 2, 1, 0}), 0.0);
}

TEST(VelocidadRed, isBytesOverSeconds)
{
    const VelocidadRed una = velocidad({1000, 500}, {5000, 1500}, 2s);
    EXPECT_DOUBLE_EQ(una.bajada, 2000);
    EXPECT_DOUBLE_EQ(una.subida, 500);
}

TEST(VelocidadRed, anIntervalOfATenthOfASecondCountsAsHalfASecond)
{
    EXPECT_DOUBLE_EQ(velocidad({0, 0}, {1000, 0}, 100ms).bajada, 2000);
}

TEST(VelocidadRed, aClockThatGoesBackCountsAsHalfASecond)
{
    EXPECT_DOUBLE_EQ(velocidad({0, 0}, {1000, 0}, -1h).bajada, 2000);
}

TEST(VelocidadRed, aCounterThatWrapsFromNear32BitsGivesZeroForBoth)
{
    const VelocidadRed una = velocidad({4'294'967'000, 500}, {120, 900}, 2s);
    EXPECT_EQ(una.bajada, 0);
    EXPECT_EQ(una.subida, 0);
    EXPECT_EQ(velocidad({500, 4'294'967'000}, {900, 120}, 2s).bajada, 0);
}

TEST(VelocidadRed, aCounterThatWrapsAt64BitsGoesOn)
{
    const std::uint64_t tope = std::numeric_limits<std::uint64_t>::max();
    EXPECT_DOUBLE_EQ(velocidad({tope - 999, 0}, {1000, 0}, 2s).bajada, 1000);
}

TEST(VelocidadRed, exactlyTheLimitIsStillASpeed)
{
    EXPECT_DOUBLE_EQ(velocidad({0, 0}, {10'000'000'000, 0}, 1s).bajada, 1e10);
    EXPECT_EQ(velocidad({0, 0}, {10'000'000'001, 5}, 1s).subida, 0);
}
