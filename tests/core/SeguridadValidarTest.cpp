#include "tests/core/SeguridadBanco.h"

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::string_literals;

namespace {

class SeguridadValidar : public BancoSeguridad
{
protected:
    std::string validar(const std::string &ruta) const
    {
        return respuesta([&] { return seguridad.validar(ruta); });
    }
    std::string acepta(const std::string &relativa) const { return "acepta " + casa.en(relativa); }
};

// Written out once more, so that a change of the list shows.
const std::vector<std::string> LAS_19{"",
                                      "Documents",
                                      "Desktop",
                                      "Pictures",
                                      "Movies",
                                      "Music",
                                      "Library",
                                      "Applications",
                                      "Public",
                                      ".ssh",
                                      ".gnupg",
                                      ".aws",
                                      ".config",
                                      ".gitconfig",
                                      "Library/Keychains",
                                      "Library/Mobile Documents",
                                      "Library/Application Support",
                                      "Library/Containers",
                                      "Library/Preferences"};

} // namespace

TEST_F(SeguridadValidar, theNineteenEntriesAndThoseOfThePlatformAreProtectedAndNothingElse)
{
    ConjuntoRutas esperadas{casa.en(".local"), casa.en(".local/share"), casa.en("Descargas")};
    for (const auto &entrada : LAS_19)
        esperadas.insert(entrada.empty() ? casa.ruta() : casa.en(entrada));
    EXPECT_EQ(seguridad.protegidas(), esperadas);
    EXPECT_EQ(esperadas.size(), 22U);
    for (const auto &ruta : esperadas)
        EXPECT_EQ(validar(ruta), "rechaza Ruta protegida, rechazada: " + ruta);
}

TEST_F(SeguridadValidar, theFirstRuleBrokenGivesTheMessage)
{
    const auto ssh = HogarTemporal::enlace(casa.en(".ssh"), casa.fuera());
    const auto git = HogarTemporal::enlace(casa.en("x/.git"), casa.fuera());
    const auto enlace = HogarTemporal::enlace(casa.en("enlace"), casa.fuera());
    const auto fueraConTodo = casa.fuera(".git/x");
    const auto listada = casa.en("lista/.ssh");
    HogarTemporal::enlace(listada, casa.fuera());
    fijarLista({casa.fuera(), casa.en("lista")});

    EXPECT_EQ(validar(""), "rechaza Ruta vacía.");
    EXPECT_EQ(validar(fueraConTodo), "rechaza Fuera de tu carpeta de inicio, rechazado: " + fueraConTodo);
    EXPECT_EQ(validar(listada), "rechaza Está en tu lista de ubicaciones protegidas: " + listada);
    EXPECT_EQ(validar(ssh), "rechaza Ruta protegida, rechazada: " + ssh);
    EXPECT_EQ(validar(git), "rechaza Contiene un componente protegido (.git): " + git);
    EXPECT_EQ(validar(enlace), "rechaza El enlace apunta fuera de tu carpeta: " + casa.fuera());
    fijarLista({ssh});
    EXPECT_EQ(validar(ssh), "rechaza Está en tu lista de ubicaciones protegidas: " + ssh);
}

TEST_F(SeguridadValidar, aPathOfBlanksOnlyIsEmpty)
{
    EXPECT_EQ(validar(" \t\u00A0\u3000 "), "rechaza Ruta vacía.");
}

TEST_F(SeguridadValidar, blanksAroundAPathAreTrimmed)
{
    EXPECT_EQ(validar(" \t~/Downloads/a.zip\u2003 "), acepta("Downloads/a.zip"));
}

TEST_F(SeguridadValidar, lineBreaksBelongToTheName)
{
    EXPECT_EQ(validar("~/a\n"), acepta("a\n"));
    EXPECT_EQ(validar("~/a\n/.git\n"), acepta("a\n/.git\n"));
    EXPECT_EQ(validar("\n~/a"), "rechaza Fuera de tu carpeta de inicio, rechazado: \n~/a");
}

// Trimming comes before the slash is dropped, as a name may end in a blank.
TEST_F(SeguridadValidar, aNameThatEndsInABlankIsReachedThroughASlash)
{
    EXPECT_EQ(validar("~/a /"), acepta("a "));
    EXPECT_EQ(validar("~/a "), acepta("a"));
}

TEST_F(SeguridadValidar, theTildeAloneAndHomeItselfAreProtected)
{
    for (const auto &ruta : {"~"s, "~/"s, casa.ruta(), casa.ruta() + "/", casa.en("x/..")})
        EXPECT_EQ(validar(ruta), "rechaza Ruta protegida, rechazada: " + casa.ruta());
}

TEST_F(SeguridadValidar, homeOnTheUsersListIsRefusedAsListed)
{
    fijarLista({casa.ruta()});
    EXPECT_EQ(validar("~"), "rechaza Está en tu lista de ubicaciones protegidas: " + casa.ruta());
    EXPECT_EQ(validar("~/a"), "rechaza Está en tu lista de ubicaciones protegidas: " + casa.en("a"));
}

TEST_F(SeguridadValidar, documentsIsRefusedButWhatItHoldsPassesAndStaysOutOfAnalysis)
{
    EXPECT_EQ(validar("~/Documents"), "rechaza Ruta protegida, rechazada: " + casa.en("Documents"));
    EXPECT_EQ(validar("~/Documents/a.txt"), acepta("Documents/a.txt"));
    EXPECT_TRUE(seguridad.esRutaProtegidaParaAnalisis(casa.en("Documents/a.txt"), {}));
}

TEST_F(SeguridadValidar, libraryIsRefusedButACacheInItPasses)
{
    EXPECT_EQ(validar("~/Library"), "rechaza Ruta protegida, rechazada: " + casa.en("Library"));
    EXPECT_EQ(validar("~/Library/Caches/com.ejemplo"), acepta("Library/Caches/com.ejemplo"));
}

TEST_F(SeguridadValidar, keychainsIsRefusedAsAMemberAndWhatItHoldsByItsComponent)
{
    const auto llaves = casa.en("Library/Keychains");
    EXPECT_EQ(validar(llaves), "rechaza Ruta protegida, rechazada: " + llaves);
    EXPECT_EQ(validar(llaves + "/a"),
              "rechaza Contiene un componente protegido (Keychains): " + llaves + "/a");
}

TEST_F(SeguridadValidar, theFirstProtectedComponentIsNamed)
{
    const auto config = casa.en("proyecto/.git/config");
    EXPECT_EQ(validar(config), "rechaza Contiene un componente protegido (.git): " + config);
    const auto dos = casa.en("a/.gnupg/b/.ssh");
    EXPECT_EQ(validar(dos), "rechaza Contiene un componente protegido (.gnupg): " + dos);
}

TEST_F(SeguridadValidar, componentsAreComparedWholeAndExactly)
{
    for (const std::string relativa : {"proyecto/.gitignore", ".gitconfig.bak", ".gitx/a", "x.git/a",
                                       ".GIT/a", ".SSH", "keychains/a", "documents", "DOCUMENTS", ".Ssh/id"})
        EXPECT_EQ(validar("~/" + relativa), acepta(relativa));
}

TEST_F(SeguridadValidar, aProtectedNameAboveHomeDoesNotCount)
{
    const Seguridad enGit{{"/srv/.git/ana", {}, {}}, preferencias};
    EXPECT_EQ(enGit.validar("~/a"), "/srv/.git/ana/a");
}

TEST_F(SeguridadValidar, aPathOutOfHomeIsShownStandardised)
{
    const auto otro = std::filesystem::path(casa.ruta()).parent_path() / "otro";
    EXPECT_EQ(validar("~/a/../../otro"),
              "rechaza Fuera de tu carpeta de inicio, rechazado: " + otro.string());
    for (const std::string ruta : {"/", "a", "../a", "a/~", "./~/a"})
        EXPECT_EQ(validar(ruta), "rechaza Fuera de tu carpeta de inicio, rechazado: " + estandarizar(ruta));
}

TEST_F(SeguridadValidar, aNeighbourWhosePathBeginsLikeHomeIsOutside)
{
    const auto vecino = HogarTemporal::archivo(casa.vecino("a"));
    EXPECT_EQ(validar(vecino), "rechaza Fuera de tu carpeta de inicio, rechazado: " + vecino);
    EXPECT_EQ(validar("~bel/a"), "rechaza Fuera de tu carpeta de inicio, rechazado: " + vecino);
    HogarTemporal::enlace(casa.en("alVecino"), casa.vecino());
    EXPECT_EQ(validar("~/alVecino/a"), "rechaza El enlace apunta fuera de tu carpeta: " + vecino);
}

TEST_F(SeguridadValidar, aPathThatDoesNotExistPasses)
{
    EXPECT_EQ(validar("~/no/existe"), acepta("no/existe"));
    HogarTemporal::archivo(casa.en("archivo"));
    EXPECT_EQ(validar("~/archivo/debajo"), acepta("archivo/debajo"));
}

TEST_F(SeguridadValidar, danglingLinksAndLoopsCountAsAbsent)
{
    HogarTemporal::enlace(casa.en("colgante"), casa.fuera("nada"));
    HogarTemporal::enlace(casa.en("uno"), "dos");
    HogarTemporal::enlace(casa.en("dos"), "uno");
    for (const std::string relativa : {"colgante", "uno", "dos/x"})
        EXPECT_EQ(validar("~/" + relativa), acepta(relativa));
}

TEST_F(SeguridadValidar, aLinkOutOfHomeIsRefusedWithItsTarget)
{
    const auto destino = HogarTemporal::archivo(casa.fuera("secreto"));
    HogarTemporal::enlace(casa.en("directo"), destino);
    HogarTemporal::enlace(casa.en("relativo"), "../fuera/secreto");
    HogarTemporal::enlace(casa.en("encadenado"), "relativo");
    HogarTemporal::enlace(casa.en("carpeta"), casa.fuera());
    for (const std::string relativa : {"directo", "relativo", "encadenado", "carpeta/secreto"})
        EXPECT_EQ(validar("~/" + relativa), "rechaza El enlace apunta fuera de tu carpeta: " + destino);
}

TEST_F(SeguridadValidar, aLinkWithinHomePassesAndIsReturnedItself)
{
    HogarTemporal::archivo(casa.en("lejos/archivo"));
    HogarTemporal::enlace(casa.en("enlace"), casa.en("lejos/archivo"));
    HogarTemporal::enlace(casa.en("carpeta"), "lejos");
    EXPECT_EQ(validar("~/enlace"), acepta("enlace"));
    EXPECT_EQ(validar("~/carpeta/archivo"), acepta("carpeta/archivo"));
}

TEST_F(SeguridadValidar, standardisingDoesNotFollowLinks)
{
    HogarTemporal::enlace(casa.en("enlace"), casa.fuera());
    EXPECT_EQ(validar("~/enlace/../a"), acepta("a"));
}

// The system would cut the text at the NUL byte and move what stands before it.
TEST_F(SeguridadValidar, aNulByteIsInsideNothing)
{
    const auto ruta = casa.en("Documents\0.txt"s);
    EXPECT_EQ(validar(ruta), "rechaza Fuera de tu carpeta de inicio, rechazado: " + ruta);
}

TEST_F(SeguridadValidar, namesThatAreNotUtf8Pass)
{
    HogarTemporal::archivo(casa.en("\xFF\xFE\x80"));
    EXPECT_EQ(validar("~/\xFF\xFE\x80"), acepta("\xFF\xFE\x80"));
    EXPECT_EQ(validar("~/\xC3/.git"),
              "rechaza Contiene un componente protegido (.git): " + casa.en("\xC3/.git"));
}

TEST_F(SeguridadValidar, composedAndDecomposedNamesAreTwoNames)
{
    fijarLista({casa.en("M\u00FAsica")});
    EXPECT_THAT(validar("~/M\u00FAsica/a"), testing::StartsWith("rechaza Está en tu lista"));
    EXPECT_EQ(validar("~/Mu\u0301sica/a"), acepta("Mu\u0301sica/a"));
}

TEST_F(SeguridadValidar, theUsersListIsReadAtEachCheck)
{
    EXPECT_EQ(validar("~/a/b"), acepta("a/b"));
    fijarLista({casa.en("a")});
    EXPECT_EQ(validar("~/a/b"), "rechaza Está en tu lista de ubicaciones protegidas: " + casa.en("a/b"));
    fijarLista({casa.en("a/b/c")});
    EXPECT_EQ(validar("~/a/b"), acepta("a/b")) << "only what lies at or under a listed path";
    preferencias.fijar(Seguridad::claveProtecciones, "not a list"s);
    EXPECT_EQ(validar("~/a/b"), acepta("a/b"));
}
