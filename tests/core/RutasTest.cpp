#include "core/Rutas.h"

#include <gtest/gtest.h>

using namespace ovanta;
using namespace std::string_literals;

namespace {

struct CasoEstandar
{
    std::string ruta, esperada;
};

} // namespace

TEST(Rutas, standardisingRemovesPointsAndSlashesAsText)
{
    const std::vector<CasoEstandar> casos{
        {"", ""},
        {"/", "/"},
        {"///", "/"},
        {"/a", "/a"},
        {"/a/", "/a"},
        {"//a///b//", "/a/b"},
        {"/a/./b/.", "/a/b"},
        {"/./", "/"},
        {"/a/b/../c", "/a/c"},
        {"/a/..", "/"},
        {"/a/../..", "/"},
        {"/../../a", "/a"},
        {"/a/.../b", "/a/.../b"},
        {"/a/..b/b..", "/a/..b/b.."},
        {"/a/ /b", "/a/ /b"},
        {"/a\n/./b", "/a\n/b"},
        {"/\xFF\xFE/../\xC3", "/\xC3"},
        {"/~/a", "/~/a"},
        {"~/a", "~/a"},
        {"a/./b/", "a/b"},
        {"a/..", ""},
        {".", ""},
        {"..", ".."},
        {"../../a/..", "../.."},
        {"a/../../b", "../b"},
    };
    for (const auto &[ruta, esperada] : casos) {
        EXPECT_EQ(estandarizar(ruta), esperada) << ruta;
        EXPECT_EQ(estandarizar(esperada), esperada) << "not idempotent: " << ruta;
    }
}

TEST(Rutas, standardisingAThousandComponentsKeepsThemAll)
{
    std::string ruta, conPuntos;
    for (int i = 0; i < 1000; ++i) {
        ruta += "/" + std::to_string(i);
        conPuntos += "/./x/..//" + std::to_string(i);
    }
    EXPECT_EQ(estandarizar(conPuntos), ruta);
}

TEST(Rutas, aTildeIsReplacedByHomeWithoutALookAtWhatFollows)
{
    EXPECT_EQ(expandirTilde("~", "/Users/ana"), "/Users/ana");
    EXPECT_EQ(expandirTilde("~/a~", "/Users/ana"), "/Users/ana/a~");
    EXPECT_EQ(expandirTilde("~bel/a", "/Users/ana"), "/Users/anabel/a");
    EXPECT_EQ(expandirTilde("/~", "/Users/ana"), "/~");
    EXPECT_EQ(expandirTilde("", "/Users/ana"), "");
}

TEST(Rutas, trimmingDropsEverySpaceOfUnicodeAndTheTab)
{
    const std::vector<std::string> blancos{" ",      "\t",     "\u00A0", "\u1680", "\u2000", "\u2001",
                                           "\u2002", "\u2003", "\u2004", "\u2005", "\u2006", "\u2007",
                                           "\u2008", "\u2009", "\u200A", "\u202F", "\u205F", "\u3000"};
    std::string todos;
    for (const auto &blanco : blancos) {
        EXPECT_EQ(recortarBlancos(blanco + "a b" + blanco), "a b");
        todos += blanco;
    }
    EXPECT_EQ(recortarBlancos(todos + "x" + todos), "x");
    EXPECT_EQ(recortarBlancos(todos), "");
}

TEST(Rutas, trimmingKeepsLineBreaksAndWhatOnlyLooksBlank)
{
    for (const auto &texto :
         {"\n"s, "\r\n"s, "\v"s, "\f"s, "\u200B"s, "\u2028"s, "\uFEFF"s, "\x80"s, "\xA0"s})
        EXPECT_EQ(recortarBlancos(texto), texto);
    EXPECT_EQ(recortarBlancos(" \n a"), "\n a");
}

TEST(Rutas, aPathLiesAtItselfAndUnderItsFoldersOnly)
{
    EXPECT_TRUE(yaceEn("/a/b", "/a/b"));
    EXPECT_TRUE(yaceEn("/a/b", "/a"));
    EXPECT_FALSE(yaceEn("/a", "/a/b"));
    EXPECT_FALSE(yaceEn("/Users/anabel", "/Users/ana"));
    EXPECT_FALSE(yaceEn("/A/b", "/a"));
    EXPECT_FALSE(yaceEn("/Mu\u0301sica/x", "/M\u00FAsica")) << "Unicode forms are not folded";
    EXPECT_TRUE(yaceEn("/", "/"));
    EXPECT_FALSE(yaceEn("/a", "/"));
}

TEST(Rutas, twoPathsCrossWhereOneLiesInTheOther)
{
    EXPECT_TRUE(cruza("/a", "/a"));
    EXPECT_TRUE(cruza("/a/b", "/a"));
    EXPECT_TRUE(cruza("/a", "/a/b"));
    EXPECT_FALSE(cruza("/a", "/ab"));
    EXPECT_FALSE(cruza("/a/b", "/a/c"));
}

TEST(Rutas, aSetIsSearchedForMembersAboveAndBelow)
{
    const ConjuntoRutas conjunto{"/a/b", "/a/b-c", "/a/d/e", "/z"};
    EXPECT_TRUE(yaceEnAlguna("/a/b", conjunto));
    EXPECT_TRUE(yaceEnAlguna("/a/b/c/d", conjunto));
    EXPECT_FALSE(yaceEnAlguna("/a", conjunto));
    EXPECT_FALSE(yaceEnAlguna("/a/bc", conjunto));
    EXPECT_TRUE(cruzaAlguna("/a", conjunto));
    EXPECT_TRUE(cruzaAlguna("/a/d", conjunto));
    EXPECT_TRUE(cruzaAlguna("/z/y", conjunto));
    EXPECT_FALSE(cruzaAlguna("/a/b-", conjunto));
    EXPECT_FALSE(cruzaAlguna("/y", conjunto));
    EXPECT_FALSE(cruzaAlguna("/a", {}));
}

TEST(Rutas, componentsComeInOrderWithoutEmptyOnes)
{
    std::string_view resto = "//a/b c///d/";
    std::vector<std::string> componentes;
    for (auto c = siguienteComponente(resto); !c.empty(); c = siguienteComponente(resto))
        componentes.emplace_back(c);
    EXPECT_EQ(componentes, (std::vector<std::string>{"a", "b c", "d"}));
}

TEST(Rutas, joiningPutsOneSlashBetween)
{
    EXPECT_EQ(unir("/Users/ana", "Library"), "/Users/ana/Library");
    EXPECT_EQ(unir("/Users/ana", ""), "/Users/ana");
    EXPECT_EQ(unir("/", "Library"), "/Library");
}

TEST(Rutas, theContainingFolderIsTheTextBeforeTheLastSlash)
{
    EXPECT_EQ(carpetaContenedora("/a/b"), "/a");
    EXPECT_EQ(carpetaContenedora("/a"), "/");
    EXPECT_EQ(carpetaContenedora("/"), "/");
    EXPECT_EQ(carpetaContenedora("a"), "");
}

TEST(Rutas, theExtensionIsWhatFollowsTheLastPointOfTheName)
{
    EXPECT_EQ(extension("/a/b.app"), "app");
    EXPECT_EQ(extension("/a/b.tar.gz"), "gz");
    EXPECT_EQ(extension("/a.app/b"), "");
    EXPECT_EQ(extension("/a/.plist"), "");
    EXPECT_EQ(extension("/a/b."), "");
    EXPECT_EQ(extension("b.App"), "App");
}

TEST(Rutas, theLastComponentIsTheNameAtTheEnd)
{
    EXPECT_EQ(ultimoComponente("/a/b.txt"), "b.txt");
    EXPECT_EQ(ultimoComponente("/a/b//"), "b");
    EXPECT_EQ(ultimoComponente("b"), "b");
    EXPECT_EQ(ultimoComponente("~/b"), "b");
    EXPECT_EQ(ultimoComponente("//"), "/");
    EXPECT_EQ(ultimoComponente(""), "");
}
