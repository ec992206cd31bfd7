#include "ui/MarcasDeCopias.h"

#include <gmock/gmock.h>

using namespace ovanta;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

ArchivoHallado copia(const std::string &ruta, std::optional<std::string> identidad)
{
    ArchivoHallado archivo;
    archivo.ruta = ruta;
    archivo.identidadFisica = std::move(identidad);
    return archivo;
}

GrupoDuplicados grupo(const std::vector<std::pair<std::string, std::string>> &copias)
{
    GrupoDuplicados grupo{"clave", 100, {}};
    for (const auto &[ruta, identidad] : copias)
        grupo.copias.push_back(copia(ruta, identidad));
    return grupo;
}

} // namespace

TEST(MarcasDeCopias, theFirstCopyCannotBeMarkedByAnyRoute)
{
    MarcasDeCopias marcas;
    const auto g = grupo({{"/a", "1"}, {"/b", "2"}});
    marcas.marcar(g, g.copias[0]);
    EXPECT_THAT(marcas.marcadas(), IsEmpty());
    marcas.marcarTodasMenosLaOriginal(g);
    EXPECT_THAT(marcas.marcadas(), UnorderedElementsAre("/b"));
    EXPECT_FALSE(MarcasDeCopias::marcable(g, g.copias[0]));
}

TEST(MarcasDeCopias, aGroupOfHardLinksHasNothingToMark)
{
    MarcasDeCopias marcas;
    const auto g = grupo({{"/a", "1"}, {"/b", "1"}, {"/c", "1"}});
    marcas.marcarTodasMenosLaOriginal(g);
    marcas.marcar(g, g.copias[2]);
    EXPECT_THAT(marcas.marcadas(), IsEmpty());
    EXPECT_EQ(marcas.bytes(), 0U);
}

TEST(MarcasDeCopias, hardLinksOfACopyAreMarkedTogetherAndCountOnce)
{
    MarcasDeCopias marcas;
    const auto g = grupo({{"/a", "1"}, {"/b", "2"}, {"/c", "2"}});
    marcas.marcar(g, g.copias[1]);
    EXPECT_THAT(marcas.marcadas(), UnorderedElementsAre("/b", "/c"));
    EXPECT_EQ(marcas.bytes(), 100U);
    marcas.marcar(g, g.copias[2]);
    EXPECT_EQ(marcas.bytes(), 100U);
}

TEST(MarcasDeCopias, unmarkingThatPairTakesItsBytesOffAndNeverGoesBelowZero)
{
    MarcasDeCopias marcas;
    const auto g = grupo({{"/a", "1"}, {"/b", "2"}, {"/c", "2"}});
    marcas.marcar(g, g.copias[1]);
    marcas.desmarcar(g, g.copias[2]);
    EXPECT_THAT(marcas.marcadas(), IsEmpty());
    EXPECT_EQ(marcas.bytes(), 0U);
    marcas.desmarcar(g, g.copias[2]);
    EXPECT_EQ(marcas.bytes(), 0U);

    // A list that was analysed again may tell another size.
    marcas.marcar(g, g.copias[1]);
    auto mayor = g;
    mayor.bytes = 500;
    marcas.desmarcar(mayor, mayor.copias[1]);
    EXPECT_EQ(marcas.bytes(), 0U);
}

TEST(MarcasDeCopias, unmarkingTheOriginalOrItsLinkChangesNothing)
{
    MarcasDeCopias marcas;
    const auto g = grupo({{"/a", "1"}, {"/b", "1"}, {"/c", "2"}});
    marcas.marcar(g, g.copias[2]);
    marcas.desmarcar(g, g.copias[0]);
    marcas.desmarcar(g, g.copias[1]);
    EXPECT_EQ(marcas.bytes(), 100U);
}

TEST(MarcasDeCopias, markingAllButTheOriginalTwiceCountsTwice)
{
    MarcasDeCopias marcas;
    const auto g = grupo({{"/a", "1"}, {"/b", "2"}, {"/c", "2"}, {"/d", "3"}});
    marcas.marcarTodasMenosLaOriginal(g);
    EXPECT_EQ(marcas.bytes(), 200U);
    marcas.marcarTodasMenosLaOriginal(g);
    EXPECT_EQ(marcas.bytes(), 400U);
    EXPECT_EQ(marcas.marcadas().size(), 3U);
}

TEST(MarcasDeCopias, afterUnmarkingAllTheFigureIsZero)
{
    MarcasDeCopias marcas;
    const auto g = grupo({{"/a", "1"}, {"/b", "2"}});
    marcas.marcarTodasMenosLaOriginal(g);
    marcas.desmarcarTodo();
    EXPECT_EQ(marcas.bytes(), 0U);
    EXPECT_THAT(marcas.marcadas(), IsEmpty());
}
