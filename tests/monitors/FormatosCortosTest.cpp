#include "monitors/FormatosCortos.h"
#include "monitors/TextoTermico.h"

#include <gtest/gtest.h>
#include <limits>

using namespace ovanta;

TEST(FormatosCortos, sizesBelowTenGBKeepOneDecimalAndThoseAboveNone)
{
    const struct
    {
        std::uint64_t bytes;
        const char *texto;
    } casos[] = {
        {0, "0.0 GB"},
        {49'999'999, "0.0 GB"},
        {1'250'000'000, "1.2 GB"},
        {9'940'000'000, "9.9 GB"},
        {10'000'000'000, "10 GB"},
        {12'400'000'000, "12 GB"},
        {12'500'000'000, "13 GB"},
        {494'384'795'648, "494 GB"},
        {std::numeric_limits<std::uint64_t>::max(), "18446744074 GB"},
    };
    for (const auto &caso : casos)
        EXPECT_EQ(formatearBytesCorto(caso.bytes), caso.texto) << caso.bytes;
}

TEST(FormatosCortos, zeroBytesIsWrittenWithADecimal)
{
    EXPECT_EQ(formatearBytesCorto(0), "0.0 GB");
}

TEST(FormatosCortos, theThresholdOfTenLooksAtTheValueBeforeRounding)
{
    EXPECT_EQ(formatearBytesCorto(9'960'000'000), "10.0 GB");
}

TEST(FormatosCortos, speedsAreCutToThousandsAndFromAMillionOnHaveTheirLetter)
{
    const struct
    {
        double velocidad;
        const char *texto;
    } casos[] = {
        {0, "0K"},       {999, "0K"},         {1000, "1K"},     {1999, "1K"},         {999'999, "999K"},
        {1e6, "1.0M"},   {1'260'000, "1.3M"}, {9.94e6, "9.9M"}, {9'999'999, "10.0M"}, {1e7, "10M"},
        {12.6e6, "13M"}, {1.25e9, "1250M"},
    };
    for (const auto &caso : casos)
        EXPECT_EQ(formatearVelocidadCorta(caso.velocidad), caso.texto) << caso.velocidad;
}

TEST(FormatosCortos, aSpeedOf999999Is999KAndOneMillionIs1Point0MAndTenMillionsAre10M)
{
    EXPECT_EQ(formatearVelocidadCorta(999'999), "999K");
    EXPECT_EQ(formatearVelocidadCorta(1e6), "1.0M");
    EXPECT_EQ(formatearVelocidadCorta(1e7), "10M");
}

TEST(TextoTermico, everyStateHasItsWordsAndAnyOtherIsUnknown)
{
    const std::string_view textos[] = {"Normal",
                                       "Templado",
                                       "Caliente: el Mac reduce velocidad",
                                       "Muy caliente: rendimiento limitado",
                                       "Desconocido",
                                       "Desconocido"};
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(textoTermico(static_cast<EstadoTermico>(i)), textos[i]);
}
