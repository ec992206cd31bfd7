#include "platform/linux/NombrePapelera.h"

#include <gtest/gtest.h>

#include <set>

using namespace ovanta;

TEST(PapeleraNombre, theFirstTryIsTheNameItselfAndTheNextOnesAreNumbered)
{
    EXPECT_EQ(nombreEnPapelera("carta.txt", 1, 255), "carta.txt");
    EXPECT_EQ(nombreEnPapelera("carta.txt", 2, 255), "carta.txt.2");
    EXPECT_EQ(nombreEnPapelera("carta.txt", 10'000, 255), "carta.txt.10000");
}

TEST(PapeleraNombre, leavesRoomForTheEndOfTheInfoFilesName)
{
    const std::string largo(255, 'x');
    EXPECT_EQ(nombreEnPapelera(largo, 1, 255), std::string(245, 'x'));
    EXPECT_EQ(nombreEnPapelera(largo, 12, 255), std::string(242, 'x') + ".12");
    EXPECT_EQ(nombreEnPapelera(std::string(245, 'x'), 1, 255), std::string(245, 'x'));
    EXPECT_EQ(nombreEnPapelera(largo, 1, 143), std::string(133, 'x'));
}

TEST(PapeleraNombre, aLongNameIsCutBetweenCharactersAndBrokenOnesAnywhere)
{
    std::string euros;
    for (int i = 0; i < 85; ++i)
        euros += "€";
    EXPECT_EQ(nombreEnPapelera(euros, 1, 255), euros.substr(0, 243));
    EXPECT_EQ(nombreEnPapelera(std::string(255, '\x80'), 1, 255), std::string(245, '\x80'));
}

TEST(PapeleraNombre, findsTheNextNumberQuicklyAmongThousands)
{
    int preguntas = 0;
    const auto hasta = [&](unsigned ultimo) {
        return [&preguntas, ultimo](unsigned n) { return ++preguntas, n <= ultimo; };
    };
    EXPECT_EQ(numeroLibre(2, hasta(1)), 2U);
    EXPECT_EQ(numeroLibre(2, hasta(2)), 3U);
    EXPECT_EQ(numeroLibre(2, hasta(7)), 8U);
    preguntas = 0;
    EXPECT_EQ(numeroLibre(2, hasta(123'456)), 123'457U);
    EXPECT_LT(preguntas, 64);
}

TEST(PapeleraNombre, neverFindsATakenNumberWhateverTheGaps)
{
    const std::set<unsigned> tomados{2, 3, 5, 6, 7, 9, 17, 33};
    for (unsigned desde = 2; desde < 40; ++desde)
        EXPECT_FALSE(tomados.contains(numeroLibre(desde, [&](unsigned n) { return tomados.contains(n); })));
}
