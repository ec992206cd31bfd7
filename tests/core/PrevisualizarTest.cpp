#include "core/Previsualizar.h"
#include "tests/core/CleanerBanco.h"

#include <sys/stat.h>

using namespace ovanta;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

class Previsualizar : public pruebas::BancoCleaner
{
protected:
    Previsualizacion mirar(const std::string &ruta, const std::string &modo,
                           const std::string &riesgo = "safe")
    {
        return cleaner().previsualizar(regla("r", ruta, modo, riesgo));
    }
};

} // namespace

TEST_F(Previsualizar, aManualRuleGivesNoPathAtAll)
{
    casa.archivo(casa.en("caja/a"));
    const Previsualizacion manual{{}, "Marcada como manual: no se borra desde aquí."};
    EXPECT_EQ(mirar("~/caja", "self", "manual"), manual);
    EXPECT_EQ(mirar("~/caja", "contents", "manual"), manual);
    EXPECT_EQ(mirar("/etc", "self", "manual"), manual) << "the risk is looked at before the path";
}

TEST_F(Previsualizar, aRefusedPathGivesTheRefusal)
{
    EXPECT_EQ(mirar("/etc", "self"),
              (Previsualizacion{{}, "Fuera de tu carpeta de inicio, rechazado: /etc"}));
}

TEST_F(Previsualizar, aPathWhereNothingExistsGivesNeitherPathsNorError)
{
    EXPECT_EQ(mirar("~/nada", "self"), Previsualizacion{});
    casa.enlace(casa.en("roto"), casa.en("nada"));
    EXPECT_EQ(mirar("~/roto", "self"), Previsualizacion{}) << "a dangling link counts as absent";
}

TEST_F(Previsualizar, modeSelfGivesTheFolderWhole)
{
    casa.archivo(casa.en("caja/a"));
    EXPECT_EQ(mirar("~/caja/", "self"), (Previsualizacion{{casa.en("caja")}, {}}));
}

TEST_F(Previsualizar, anyOtherModeGivesTheDirectEntries)
{
    casa.archivo(casa.en("caja/a"));
    casa.archivo(casa.en("caja/b/c"));
    casa.archivo(casa.en("caja/.oculta"));
    casa.enlace(casa.en("caja/roto"), "nada");
    for (const std::string modo : {"contents", "", "SELF"}) {
        const auto vista = mirar("~/caja", modo);
        EXPECT_THAT(vista.rutas, UnorderedElementsAre(casa.en("caja/a"), casa.en("caja/b"),
                                                      casa.en("caja/.oculta"), casa.en("caja/roto")));
        EXPECT_EQ(vista.error, std::nullopt);
    }
}

TEST_F(Previsualizar, anythingThatIsNoFolderIsGivenItself)
{
    casa.archivo(casa.en("archivo"));
    ASSERT_EQ(::mkfifo(casa.en("tubo").c_str(), 0600), 0);
    casa.enlace(casa.en("enlace"), casa.en("archivo"));
    for (const std::string nombre : {"archivo", "tubo", "enlace"})
        EXPECT_EQ(mirar("~/" + nombre, "contents"), (Previsualizacion{{casa.en(nombre)}, {}}));
}

TEST_F(Previsualizar, entriesThatAreRefusedAreLeftOutSilently)
{
    casa.archivo(casa.en("caja/a"));
    casa.carpeta(casa.en("caja/.git"));
    casa.archivo(casa.en("caja/mia"));
    casa.enlace(casa.en("caja/fuga"), casa.fuera());
    plataforma.preferencias().fijar(Seguridad::claveProtecciones, std::vector{casa.en("caja/mia")});
    EXPECT_EQ(mirar("~/caja", "contents"), (Previsualizacion{{casa.en("caja/a")}, {}}));
}

TEST_F(Previsualizar, aLinkToAFolderGivesItsEntriesUnderTheNameOfTheLink)
{
    casa.archivo(casa.en("caja/a"));
    casa.enlace(casa.en("atajo"), casa.en("caja"));
    EXPECT_EQ(mirar("~/atajo", "contents"), (Previsualizacion{{casa.en("atajo/a")}, {}}));
}

TEST_F(Previsualizar, anEmptyFolderGivesNothing)
{
    casa.carpeta(casa.en("caja"));
    EXPECT_EQ(mirar("~/caja", "contents"), Previsualizacion{});
}

TEST_F(Previsualizar, namesThatAreNoUtf8ComeBackByteForByte)
{
    casa.archivo(casa.en("caja/\xFF\n\xC3"));
    EXPECT_EQ(mirar("~/caja", "contents"), (Previsualizacion{{casa.en("caja/\xFF\n\xC3")}, {}}));
}

TEST_F(Previsualizar, nothingMoves)
{
    casa.archivo(casa.en("caja/a"));
    mirar("~/caja", "self");
    mirar("~/caja", "contents");
    EXPECT_TRUE(hay(casa.en("caja/a")));
    EXPECT_THAT(plataforma.m_papelera.recicladas, IsEmpty());
}
