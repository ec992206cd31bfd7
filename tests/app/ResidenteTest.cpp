#include "app/Residente.h"
#include "app/SenalesDeFin.h"
#include "tests/PlataformaDePrueba.h"

#include <QSignalSpy>
#include <QTest>
#include <csignal>
#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

struct ResidenteTest : testing::Test
{
    PlataformaDePrueba plataforma;
    const QStringList sinBiblioteca{QStringLiteral("/no/existe/libovanta_interfaz.so")};
};

} // namespace

TEST_F(ResidenteTest, whereAnotherInstanceRunsNothingIsShown)
{
    plataforma.m_instancia.primera = false;
    OvantaApp app(plataforma);
    Residente residente(app, sinBiblioteca);
    EXPECT_FALSE(residente.empezar());
    EXPECT_FALSE(residente.bandeja().visible());
    EXPECT_TRUE(plataforma.m_dialogo.mostrados.empty());
}

TEST_F(ResidenteTest, aWindowLibraryThatCannotBeLoadedIsToldInWords)
{
    OvantaApp app(plataforma);
    Residente residente(app, sinBiblioteca);
    EXPECT_TRUE(residente.empezar());
    ASSERT_EQ(plataforma.m_dialogo.mostrados.size(), 1U);
    EXPECT_EQ(plataforma.m_dialogo.mostrados[0].titulo, "No se pudo abrir la ventana de Ovanta");
    EXPECT_NE(plataforma.m_dialogo.mostrados[0].cuerpo.find("/no/existe"), std::string::npos);
}

TEST_F(ResidenteTest, startedByTheSessionItOpensNoWindowUntilItIsAsked)
{
    plataforma.m_instancia.silenciosa = true;
    OvantaApp app(plataforma);
    Residente residente(app, sinBiblioteca);
    EXPECT_TRUE(residente.empezar());
    EXPECT_TRUE(plataforma.m_dialogo.mostrados.empty());
    plataforma.m_instancia.alActivar();
    EXPECT_EQ(plataforma.m_dialogo.mostrados.size(), 1U);
}

TEST_F(ResidenteTest, withoutATrayTheWindowOpensEvenWhenTheSessionStartedIt)
{
    plataforma.m_instancia.silenciosa = true;
    plataforma.m_anfitrion.hay = false;
    OvantaApp app(plataforma);
    Residente residente(app, sinBiblioteca);
    EXPECT_TRUE(residente.empezar());
    EXPECT_EQ(plataforma.m_dialogo.mostrados.size(), 1U);
}

TEST_F(ResidenteTest, theIconComesAndGoesWithTheTrayHost)
{
    plataforma.m_anfitrion.hay = false;
    OvantaApp app(plataforma);
    Residente residente(app, sinBiblioteca);
    residente.empezar();
    EXPECT_FALSE(residente.bandeja().visible());
    plataforma.m_anfitrion.cambiar(true);
    EXPECT_TRUE(residente.bandeja().visible());
    plataforma.m_anfitrion.cambiar(false);
    EXPECT_FALSE(residente.bandeja().visible());
}

TEST_F(ResidenteTest, theIconFollowsTheFreeSpace)
{
    plataforma.m_volumen.espacio = Volumen::Espacio{1, 500'000'000'000, 120'000'000'000};
    OvantaApp app(plataforma);
    Residente residente(app, sinBiblioteca);
    residente.empezar();
    EXPECT_EQ(residente.bandeja().ayuda(), QStringLiteral("Ovanta · 120 GB libres"));
    plataforma.m_volumen.espacio->disponibles = 99'500'000'000;
    app.disco().medir();
    EXPECT_EQ(residente.bandeja().ayuda(), QStringLiteral("Ovanta · 99,5 GB libres"));
}

TEST(SenalesDeFin, theEndOfTheSessionBecomesASignalOfTheMainThread)
{
    SenalesDeFin senales;
    QSignalSpy espia(&senales, &SenalesDeFin::pedida);
    for (const int senal : {SIGTERM, SIGINT, SIGHUP}) {
        std::raise(senal);
        EXPECT_TRUE(espia.wait(5000)) << senal;
    }
    EXPECT_EQ(espia.count(), 3);
}
