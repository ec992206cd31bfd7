#include "platform/linux/EntradaEscritorio.h"

#include <gtest/gtest.h>

using namespace ovanta;

namespace {

const std::vector<std::string> espanol = {"es_MX", "es"};

std::optional<EntradaEscritorio> leer(const std::string &lineas)
{
    return leerEntrada("[Desktop Entry]\nType=Application\n" + lineas, espanol);
}

} // namespace

TEST(EntradaEscritorio, theFieldsOfAnEntryAreRead)
{
    const auto entrada = leer("Name=Editor\nExec=/usr/bin/editor --new %U\nTryExec=editor\nIcon=editor-icon\n"
                              "StartupWMClass=Editor-bin\nNoDisplay=true\nTerminal=true\n");
    ASSERT_TRUE(entrada);
    EXPECT_EQ(entrada->nombre, "Editor");
    EXPECT_EQ(entrada->orden, (std::vector<std::string>{"/usr/bin/editor", "--new", "%U"}));
    EXPECT_EQ(entrada->probar, "editor");
    EXPECT_EQ(entrada->icono, "editor-icon");
    EXPECT_EQ(entrada->claseVentana, "Editor-bin");
    EXPECT_TRUE(entrada->oculta);
    EXPECT_TRUE(entrada->enTerminal);
    EXPECT_FALSE(entrada->borrada);
}

TEST(EntradaEscritorio, theNameIsTheNearestToTheUsersLanguage)
{
    const std::vector<std::pair<std::string, std::string>> casos = {
        {"Name=Files\nName[es]=Archivos\nName[es_MX]=Carpetas\n", "Carpetas"},
        {"Name[es_MX]=Carpetas\nName[es]=Archivos\nName=Files\n", "Carpetas"},
        {"Name=Files\nName[fr]=Fichiers\nName[es]=Archivos\n", "Archivos"},
        {"Name=Files\nName[es]=\n", "Files"},
        {"Name=Files\nName[fr]=Fichiers\n", "Files"},
    };
    for (const auto &[lineas, nombre] : casos)
        EXPECT_EQ(leer(lineas).value_or(EntradaEscritorio{}).nombre, nombre) << lineas;
}

TEST(EntradaEscritorio, aLocaleGivesItsFormsFromTheMostExact)
{
    using Formas = std::vector<std::string>;
    EXPECT_EQ(idiomasDeEntrada("es_MX.UTF-8"), (Formas{"es_MX", "es"}));
    EXPECT_EQ(idiomasDeEntrada("ca_ES.UTF-8@valencia"),
              (Formas{"ca_ES@valencia", "ca_ES", "ca@valencia", "ca"}));
    EXPECT_EQ(idiomasDeEntrada("es"), (Formas{"es"}));
    EXPECT_EQ(idiomasDeEntrada("C.UTF-8"), Formas{});
    EXPECT_EQ(idiomasDeEntrada(""), Formas{});
}

TEST(EntradaEscritorio, whatIsNoApplicationGivesNothing)
{
    for (const char *bytes :
         {"", "[Desktop Entry]\nType=Link\nName=x\n", "[Desktop Entry]\nType=Application\n",
          "Type=Application\nName=x\n", "[Desktop Action a]\nType=Application\nName=x\n"})
        EXPECT_FALSE(leerEntrada(bytes, espanol)) << bytes;
    EXPECT_FALSE(
        leerEntrada("[Desktop Entry]\nType=Application\nName=x\n" + std::string(limiteEntrada, '#'), {}));
}

TEST(EntradaEscritorio, otherGroupsAndASecondOneOfTheSameNameAreNotHeard)
{
    const auto entrada = leer("Name=Bueno\n[Desktop Action nueva]\nName=Acción\nIcon=otro\n"
                              "[Desktop Entry]\nName[es]=Malo\nHidden=true\n");
    ASSERT_TRUE(entrada);
    EXPECT_EQ(entrada->nombre, "Bueno");
    EXPECT_EQ(entrada->icono, "");
    EXPECT_FALSE(entrada->borrada);
}

TEST(EntradaEscritorio, hostileValuesAreLeftOut)
{
    const auto entrada =
        leer("Name=Bueno\nIcon=a\\nb\nName[es]=\xff\xfe\nStartupWMClass=" + std::string(5000, 'x') +
             "\nExec=\"sin cerrar\n=\n[\n");
    ASSERT_TRUE(entrada);
    EXPECT_EQ(entrada->nombre, "Bueno");
    EXPECT_EQ(entrada->icono, "");
    EXPECT_EQ(entrada->claseVentana, "");
    EXPECT_TRUE(entrada->orden.empty());
}

TEST(EntradaEscritorio, theWordsOfAnOrderLoseTheirQuotes)
{
    using Palabras = std::vector<std::string>;
    const std::vector<std::pair<std::string, Palabras>> casos = {
        {"a b  c", {"a", "b", "c"}},
        {R"("/opt/dos palabras/x" "")", {"/opt/dos palabras/x", ""}},
        {R"("con \"comillas\" y \$")", {"con \"comillas\" y $"}},
        {R"(sin\barra)", {R"(sin\barra)"}},
        {"\"abierta", {}},
        {"", {}},
    };
    for (const auto &[texto, palabras] : casos)
        EXPECT_EQ(palabrasDeOrden(texto), palabras) << texto;
}

TEST(EntradaEscritorio, anOrderStartsWithoutItsFieldCodes)
{
    const auto entrada = leer("Name=x\nExec=prog --caption=%c %U 100%% %F --fin\n");
    ASSERT_TRUE(entrada);
    EXPECT_EQ(ordenSinArgumentos(*entrada),
              (std::vector<std::string>{"prog", "--caption=", "100%", "--fin"}));
}
