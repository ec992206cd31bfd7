#include "core/qt/PreferenciasQt.h"

#include <QTemporaryDir>
#include <fstream>
#include <gtest/gtest.h>

using namespace ovanta;

namespace {

struct PreferenciasQtTest : testing::Test
{
    QTemporaryDir carpeta;
    std::string archivo = carpeta.filePath(QStringLiteral("sub/ovanta.conf")).toStdString();
};

} // namespace

TEST_F(PreferenciasQtTest, aRegisteredDefaultHoldsUntilAValueIsStored)
{
    PreferenciasQt p{archivo};
    EXPECT_EQ(p.real("umbralAviso"), 0.0);
    p.registrar("umbralAviso", 100.0);
    EXPECT_EQ(p.real("umbralAviso"), 100.0);
    p.fijar("umbralAviso", 40.5);
    EXPECT_EQ(p.real("umbralAviso"), 40.5);
    p.quitar("umbralAviso");
    EXPECT_EQ(p.real("umbralAviso"), 100.0);
}

TEST_F(PreferenciasQtTest, everyKindSurvivesARestart)
{
    const Fecha fecha{std::chrono::microseconds{1'795'238'316'123'456}};
    const std::vector<std::string> rutas{"/home/ana/a\nb", std::string("/home/ana/\xff\xfe"), "", "/x,y;z"};
    {
        PreferenciasQt p{archivo};
        p.fijar("b", true);
        p.fijar("i", std::int64_t{-42});
        p.fijar("d", 0.1);
        p.fijar("t", std::string("true"));
        p.fijar("f", fecha);
        p.fijar("l", rutas);
        p.fijar("auto.umbral.bateria", std::int64_t{101});
    }
    PreferenciasQt p{archivo};
    EXPECT_EQ(p.booleanoSiHay("b"), true);
    EXPECT_EQ(p.entero("i"), -42);
    EXPECT_EQ(p.real("d"), 0.1);
    EXPECT_EQ(p.leer("t"), Preferencias::Valor{std::string("true")});
    EXPECT_EQ(p.leer("f"), Preferencias::Valor{fecha});
    EXPECT_EQ(p.lista("l"), rutas);
    EXPECT_EQ(p.entero("auto.umbral.bateria"), 101);
}

TEST_F(PreferenciasQtTest, anotherKindReadsAsTheZeroOfTheOneAskedFor)
{
    PreferenciasQt p{archivo};
    p.fijar("b", std::int64_t{1});
    EXPECT_EQ(p.booleanoSiHay("b"), std::nullopt);
    EXPECT_FALSE(p.booleano("b"));
    p.fijar("d", true);
    EXPECT_EQ(p.real("d"), 0.0);
    EXPECT_TRUE(p.lista("d").empty());
}

TEST_F(PreferenciasQtTest, listsOfNoAndOfOneEntrySurviveARestart)
{
    {
        PreferenciasQt p{archivo};
        p.fijar("vacia", std::vector<std::string>{});
        p.fijar("una", std::vector<std::string>{"/home/ana/x"});
    }
    PreferenciasQt p{archivo};
    EXPECT_TRUE(p.lista("vacia").empty());
    EXPECT_EQ(p.lista("una"), std::vector<std::string>{"/home/ana/x"});
}

TEST_F(PreferenciasQtTest, aFileOfGarbageReadsAsEmpty)
{
    QDir().mkpath(carpeta.filePath(QStringLiteral("sub")));
    std::ofstream{archivo} << "\x00\xff[[[==\n[General]\numbralAviso=@Invalid()\nnotificar=quizas\n";
    PreferenciasQt p{archivo};
    p.registrar("umbralAviso", 100.0);
    p.registrar("notificar", true);
    EXPECT_EQ(p.real("umbralAviso"), 100.0);
    EXPECT_TRUE(p.booleano("notificar"));
}

TEST_F(PreferenciasQtTest, aFolderThatCannotBeWrittenKeepsTheValueForThisRun)
{
    PreferenciasQt p{"/proc/ovanta/no.conf"};
    p.fijar("b", true);
    EXPECT_TRUE(p.booleano("b"));
}
