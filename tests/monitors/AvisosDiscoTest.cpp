#include "monitors/AvisosDisco.h"
#include "tests/Medidas.h"

#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::chrono_literals;

namespace {

constexpr UmbralesDisco porDefecto{100.0, 50.0};

const Fecha inicio{1'000'000'000s};

} // namespace

TEST(NivelDisco, freeSpaceExactlyAtAThresholdBelongsToItsLevel)
{
    EXPECT_EQ(nivelDe(50 * gib, porDefecto), NivelDisco::critico);
    EXPECT_EQ(nivelDe(50 * gib + 1, porDefecto), NivelDisco::aviso);
    EXPECT_EQ(nivelDe(100 * gib, porDefecto), NivelDisco::aviso);
    EXPECT_EQ(nivelDe(100 * gib + 1, porDefecto), NivelDisco::ok);
    EXPECT_EQ(nivelDe(0, porDefecto), NivelDisco::critico);
}

TEST(NivelDisco, aCriticalThresholdAboveTheWarningLeavesNoRoomForIt)
{
    constexpr UmbralesDisco cruzados{50.0, 100.0};
    EXPECT_EQ(nivelDe(101 * gib, cruzados), NivelDisco::ok);
    EXPECT_EQ(nivelDe(100 * gib, cruzados), NivelDisco::critico);
    EXPECT_EQ(nivelDe(49 * gib, cruzados), NivelDisco::critico);
}

TEST(NivelDisco, rawValuesAreStable)
{
    EXPECT_EQ(textoNivel(NivelDisco::ok), "ok");
    EXPECT_EQ(textoNivel(NivelDisco::aviso), "aviso");
    EXPECT_EQ(textoNivel(NivelDisco::critico), "critico");
}

TEST(AvisosDisco, theFirstFallIsToldAndEnoughSpaceIsNot)
{
    AvisosDisco avisos;
    EXPECT_FALSE(avisos.corresponde(NivelDisco::ok, inicio));
    EXPECT_TRUE(avisos.corresponde(NivelDisco::aviso, inicio));
    EXPECT_EQ(avisos.nivelNotificado(), NivelDisco::aviso);
    EXPECT_EQ(avisos.ultimaNotificacion(), inicio);
}

TEST(AvisosDisco, exactlySixHoursDoNotRepeatAndAnyMoreDo)
{
    AvisosDisco avisos;
    ASSERT_TRUE(avisos.corresponde(NivelDisco::aviso, inicio));
    EXPECT_FALSE(avisos.corresponde(NivelDisco::aviso, inicio + 6h));
    EXPECT_TRUE(avisos.corresponde(NivelDisco::aviso, inicio + 6h + 1us));
    EXPECT_FALSE(avisos.corresponde(NivelDisco::aviso, inicio + 12h));
}

TEST(AvisosDisco, aRiseToCriticalIsToldAtOnceAndRestartsTheSixHours)
{
    AvisosDisco avisos;
    ASSERT_TRUE(avisos.corresponde(NivelDisco::aviso, inicio));
    EXPECT_TRUE(avisos.corresponde(NivelDisco::critico, inicio + 1min));
    EXPECT_FALSE(avisos.corresponde(NivelDisco::critico, inicio + 6h));
    EXPECT_TRUE(avisos.corresponde(NivelDisco::critico, inicio + 6h + 2min));
}

TEST(AvisosDisco, aFallFromCriticalToWarningNeitherTellsNorForgets)
{
    AvisosDisco avisos;
    ASSERT_TRUE(avisos.corresponde(NivelDisco::critico, inicio));
    EXPECT_FALSE(avisos.corresponde(NivelDisco::aviso, inicio + 1h));
    EXPECT_EQ(avisos.nivelNotificado(), NivelDisco::critico);
    EXPECT_FALSE(avisos.corresponde(NivelDisco::critico, inicio + 2h)) << "critical was told already";
}

TEST(AvisosDisco, aRepeatAtWarningLetsALaterCriticalCountAsARise)
{
    AvisosDisco avisos;
    ASSERT_TRUE(avisos.corresponde(NivelDisco::critico, inicio));
    ASSERT_TRUE(avisos.corresponde(NivelDisco::aviso, inicio + 7h));
    EXPECT_EQ(avisos.nivelNotificado(), NivelDisco::aviso);
    EXPECT_TRUE(avisos.corresponde(NivelDisco::critico, inicio + 7h + 1min));
}

TEST(AvisosDisco, onlyEnoughSpaceReArms)
{
    AvisosDisco avisos;
    ASSERT_TRUE(avisos.corresponde(NivelDisco::critico, inicio));
    EXPECT_FALSE(avisos.corresponde(NivelDisco::ok, inicio + 1min));
    EXPECT_EQ(avisos.ultimaNotificacion(), std::nullopt);
    EXPECT_TRUE(avisos.corresponde(NivelDisco::aviso, inicio + 2min));
}

TEST(AvisosDisco, aClockSetBackRepeatsNothing)
{
    AvisosDisco avisos;
    ASSERT_TRUE(avisos.corresponde(NivelDisco::aviso, inicio));
    EXPECT_FALSE(avisos.corresponde(NivelDisco::aviso, inicio - 24h));
}

TEST(AvisosDisco, everyLevelHasItsTitle)
{
    EXPECT_EQ(tituloAviso(NivelDisco::ok), "Espacio suficiente");
    EXPECT_EQ(tituloAviso(NivelDisco::aviso), "Queda poco espacio");
    EXPECT_EQ(tituloAviso(NivelDisco::critico), "Espacio crítico");
}

TEST(AvisosDisco, theBodyTellsFreeAndTotal)
{
    EXPECT_EQ(cuerpoAviso(45'230'000'000, 500'000'000'000, {}), "Quedan 45,23 GB libres de 500 GB.");
    EXPECT_EQ(cuerpoAviso(0, 500'000'000'000, {}), "Quedan 0 GB libres de 500 GB.");
    EXPECT_EQ(cuerpoAviso(INT64_MAX, INT64_MAX, {}),
              "Quedan 9.223.372.036,85 GB libres de 9.223.372.036,85 GB.");
}

TEST(AvisosDiscoDeathTest, aFigureBeyondSignedRangeEndsTheProcess)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(cuerpoAviso(1ULL << 63, 1, {}), "overflowed");
}
