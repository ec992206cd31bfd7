#include "app/Residente.h"
#include "app/SenalesDeFin.h"
#include "app/SimboloNivel.h"
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

TEST_F(ResidenteTest, thePanelNeedsTheWindowLibraryToo)
{
    plataforma.m_instancia.silenciosa = true;
    OvantaApp app(plataforma);
    Residente residente(app, sinBiblioteca);
    residente.empezar();
    Q_EMIT residente.bandeja().pulsada();
    EXPECT_EQ(plataforma.m_dialogo.mostrados.size(), 1U);
    Q_EMIT residente.bandeja().panelPedido();
    EXPECT_EQ(plataforma.m_dialogo.mostrados.size(), 2U);
}

TEST_F(ResidenteTest, updatingFromTheMenuMeasuresTheDiskAndListsTheSimulators)
{
    OvantaApp app(plataforma);
    Residente residente(app, sinBiblioteca);
    const int lecturas = plataforma.m_volumen.lecturas;
    Q_EMIT residente.bandeja().actualizarPedido();
    EXPECT_EQ(plataforma.m_volumen.lecturas, lecturas + 1);
    EXPECT_TRUE(app.sims().cargando());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !app.sims().cargando(); }));
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

TEST_F(ResidenteTest, whereNoTrayComesUpTheWindowOpensEvenWhenTheSessionStartedIt)
{
    plataforma.m_instancia.silenciosa = true;
    plataforma.m_anfitrion.hay = false;
    OvantaApp app(plataforma);
    Residente residente(app, sinBiblioteca);
    EXPECT_TRUE(residente.empezar());
    plataforma.m_reloj.avanzar(std::chrono::seconds{19});
    EXPECT_TRUE(plataforma.m_dialogo.mostrados.empty());
    plataforma.m_reloj.avanzar(std::chrono::seconds{2});
    EXPECT_EQ(plataforma.m_dialogo.mostrados.size(), 1U);
}

TEST_F(ResidenteTest, aTrayThatComesUpLateKeepsTheWindowClosed)
{
    plataforma.m_instancia.silenciosa = true;
    plataforma.m_anfitrion.hay = false;
    OvantaApp app(plataforma);
    Residente residente(app, sinBiblioteca);
    EXPECT_TRUE(residente.empezar());
    plataforma.m_anfitrion.cambiar(true);
    plataforma.m_reloj.avanzar(std::chrono::seconds{60});
    EXPECT_TRUE(plataforma.m_dialogo.mostrados.empty());
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

TEST_F(ResidenteTest, withFiguresTheTooltipAndTheMenuSayTheLabel)
{
    plataforma.m_volumen.espacio = Volumen::Espacio{1, 500'000'000'000, 120'000'000'000};
    OvantaApp app(plataforma);
    Residente residente(app, sinBiblioteca);
    residente.empezar();
    app.stats().fijarBarraCPU(true);
    app.stats().fijarBarraRed(true);
    EXPECT_EQ(residente.bandeja().ayuda(), QStringLiteral("Ovanta · 120 GB · CPU 0% · NET 0K"));
    plataforma.m_contadores.ticks = Contadores::Ticks{.user = 25, .system = 0, .idle = 75, .nice = 0};
    plataforma.m_contadores.bytes = {3'000'000, 200'000};
    plataforma.m_reloj.avanzar(std::chrono::seconds{2});
    EXPECT_EQ(residente.bandeja().ayuda(), QStringLiteral("Ovanta · 120 GB · CPU 25% · NET 1.6M"));
    EXPECT_EQ(residente.bandeja().menu().actions().constFirst()->text(),
              QStringLiteral("120 GB · CPU 25% · NET 1.6M"));
    app.disco().fijarMostrarTextoEnBarra(false);
    EXPECT_EQ(residente.bandeja().ayuda(), QStringLiteral("Ovanta · CPU 25% · NET 1.6M"));
}

TEST_F(ResidenteTest, withoutFiguresAndWithoutFreeSpaceThereIsOnlyTheLevelsSymbol)
{
    OvantaApp app(plataforma);
    Residente residente(app, sinBiblioteca);
    residente.empezar();
    app.disco().fijarMostrarTextoEnBarra(false);
    EXPECT_EQ(residente.bandeja().ayuda(), QStringLiteral("Ovanta"));
    const auto simbolo = [](const QIcon &icono) { return icono.pixmap(32, 32).toImage(); };
    EXPECT_EQ(simbolo(residente.bandeja().imagen()), simbolo(simboloDeNivel(app.disco().nivel(), false)));
}

TEST_F(ResidenteTest, aHostThatShowsWidePicturesGetsTheWholeLabel)
{
    plataforma.m_anfitrion.anchas = true;
    OvantaApp app(plataforma);
    Residente residente(app, sinBiblioteca);
    residente.empezar();
    const auto ancho = [&residente] {
        const QSize tamano = residente.bandeja().imagen().availableSizes().constFirst();
        return tamano.width() - tamano.height();
    };
    EXPECT_EQ(ancho(), 0) << "no figure is shown";
    app.stats().fijarBarraRAM(true);
    const int soloRAM = ancho();
    EXPECT_GT(soloRAM, 30);
    app.stats().fijarBarraRAM(false);
    app.stats().fijarBarraCPU(true);
    EXPECT_GT(ancho(), soloRAM) << "the graph comes with the processor";
    app.stats().fijarBarraGrafica(false);
    EXPECT_NEAR(ancho(), soloRAM, 4);
}

TEST_F(ResidenteTest, samplesDoNotTouchTheIconWhileNoFigureIsShown)
{
    OvantaApp app(plataforma);
    Residente residente(app, sinBiblioteca);
    residente.empezar();
    const qint64 imagen = residente.bandeja().imagen().cacheKey();
    const QString ayuda = residente.bandeja().ayuda();
    plataforma.m_contadores.bytes = {5'000'000, 0};
    plataforma.m_reloj.avanzar(std::chrono::seconds{50});
    EXPECT_EQ(residente.bandeja().imagen().cacheKey(), imagen);
    EXPECT_EQ(residente.bandeja().ayuda(), ayuda);
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
