#include "analysis/GrupoDuplicados.h"

#include <gmock/gmock.h>

namespace ovanta::pruebas {
namespace {

using testing::ElementsAre;

ArchivoHallado copia(const std::string &ruta, std::optional<std::string> identidad)
{
    ArchivoHallado archivo;
    archivo.ruta = ruta;
    archivo.bytes = 100;
    archivo.identidadFisica = std::move(identidad);
    return archivo;
}

GrupoDuplicados grupo(std::vector<ArchivoHallado> copias)
{
    return {"clave", 100, std::move(copias)};
}

std::vector<std::string> rutas(const std::vector<ArchivoHallado> &archivos)
{
    std::vector<std::string> rutas;
    for (const auto &archivo : archivos)
        rutas.push_back(archivo.ruta);
    return rutas;
}

TEST(GrupoDuplicados, twoHardLinksPromiseNoSpace)
{
    EXPECT_EQ(grupo({copia("/a", "1:1"), copia("/b", "1:1")}).desperdiciado(), 0U);
}

TEST(GrupoDuplicados, ofThreeWithTwoHardLinksOneIsExtra)
{
    EXPECT_EQ(grupo({copia("/a", "1:1"), copia("/b", "1:2"), copia("/c", "1:1")}).desperdiciado(), 100U);
}

TEST(GrupoDuplicados, clonesHaveInodesOfTheirOwnAndCountInFull)
{
    EXPECT_EQ(grupo({copia("/a", "1:1"), copia("/b", "1:2"), copia("/c", "1:3")}).desperdiciado(), 200U);
}

TEST(GrupoDuplicados, withoutAnIdentityEachPathCounts)
{
    const GrupoDuplicados sin = grupo({copia("/a", {}), copia("/b", {})});
    EXPECT_EQ(sin.desperdiciado(), 100U);
    EXPECT_FALSE(sin.esMismaCopiaFisica(sin.copias[0]))
        << "an absent identity never matches, not even by path";
    EXPECT_THAT(rutas(sin.rutasMismaCopiaFisica(sin.copias[1])), ElementsAre("/b"));
}

TEST(GrupoDuplicados, anEmptyOneWastesNothingAndMatchesNobody)
{
    EXPECT_EQ(grupo({}).desperdiciado(), 0U);
    EXPECT_FALSE(grupo({}).esMismaCopiaFisica(copia("/a", "1:1")));
}

TEST(GrupoDuplicados, knowsTheLinksOfTheOriginalAndThoseOfAnotherCopy)
{
    const GrupoDuplicados g =
        grupo({copia("/a", "1:1"), copia("/b", "1:2"), copia("/c", "1:1"), copia("/d", "1:2")});
    EXPECT_TRUE(g.esMismaCopiaFisica(g.copias[2]));
    EXPECT_FALSE(g.esMismaCopiaFisica(g.copias[1]));
    EXPECT_THAT(rutas(g.rutasMismaCopiaFisica(g.copias[3])), ElementsAre("/b", "/d"));
}

TEST(GrupoDuplicados, theTotalAddsUpAllGroups)
{
    EXPECT_EQ(desperdicioTotal({grupo({copia("/a", "1:1"), copia("/b", "1:2")}),
                                grupo({copia("/c", "1:3"), copia("/d", "1:4"), copia("/e", "1:5")})}),
              300U);
}

TEST(GrupoDuplicadosDeathTest, anOverflowEndsTheProgram)
{
    GrupoDuplicados enorme = grupo({copia("/a", "1:1"), copia("/b", "1:2"), copia("/c", "1:3")});
    enorme.bytes = UINT64_MAX;
    EXPECT_DEATH(static_cast<void>(enorme.desperdiciado()), "overflowed");
}

} // namespace
} // namespace ovanta::pruebas
