#include "core/TextoBytes.h"

#include <gtest/gtest.h>

using namespace ovanta;

namespace {

struct Caso
{
    std::uint64_t bytes;
    std::string texto;
};

const std::vector<Caso> archivos = {
    {0, "0 GB"},
    {1, "0 MB"},
    {49'999, "0 MB"},
    {50'000, "0,1 MB"},
    {500'000, "0,5 MB"},
    {999'999, "1 MB"},
    {1'000'000, "1 MB"},
    {1'049'999, "1 MB"},
    {1'050'000, "1,1 MB"},
    {12'300'000, "12,3 MB"},
    {999'900'000, "999,9 MB"},
    {999'949'999, "999,9 MB"},
    {999'950'000, "1 GB"},
    {1'000'000'000, "1 GB"},
    {1'004'999'999, "1 GB"},
    {1'005'000'000, "1,01 GB"},
    {1'500'000'000, "1,5 GB"},
    {123'456'789'012, "123,46 GB"},
    {999'995'000'000, "1000 GB"},
    {1'234'560'000'000, "1234,56 GB"},
    {9'999'994'999'999, "9999,99 GB"},
    {9'999'995'000'000, "10.000 GB"},
    {12'345'670'000'000, "12.345,67 GB"},
    {UINT64_MAX, "18.446.744.073,71 GB"},
};

const std::vector<Caso> memoria = {
    {0, "0 GB"},
    {1, "0 MB"},
    {1'048'576, "1 MB"},
    {1'572'864, "1,5 MB"},
    {1'073'689'395, "1023,9 MB"},
    {1'073'689'396, "1 GB"},
    {1'073'741'824, "1 GB"},
    {17'179'869'184, "16 GB"},
    {8'804'682'957, "8,2 GB"},
};

} // namespace

TEST(TextoBytes, fileSizesCountThousands)
{
    for (const Caso &caso : archivos)
        EXPECT_EQ(textoBytes(caso.bytes), caso.texto) << caso.bytes;
}

TEST(TextoBytes, memorySizesCountPowersOfTwo)
{
    for (const Caso &caso : memoria)
        EXPECT_EQ(textoBytes(caso.bytes, EstiloBytes::memoria), caso.texto) << caso.bytes;
}

TEST(TextoBytes, aLanguageBringsItsOwnPointAndGroups)
{
    const FormaNumeros mexicana{".", ",", 4};
    EXPECT_EQ(textoBytes(1'234'560'000'000, EstiloBytes::archivo, mexicana), "1,234.56 GB");
    EXPECT_EQ(textoBytes(999'900'000, EstiloBytes::archivo, mexicana), "999.9 MB");
}

TEST(TextoBytes, wholeNumbersAreGroupedFromFiveDigitsOn)
{
    const std::vector<Caso> casos = {{0, "0"},
                                     {999, "999"},
                                     {1234, "1234"},
                                     {12'345, "12.345"},
                                     {123'456, "123.456"},
                                     {1'234'567, "1.234.567"},
                                     {UINT64_MAX, "18.446.744.073.709.551.615"}};
    for (const Caso &caso : casos)
        EXPECT_EQ(textoEntero(caso.bytes), caso.texto);
}
