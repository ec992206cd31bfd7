#include "monitors/SystemStatsMonitor.h"
#include "tests/PlataformaDePrueba.h"

#include <QSignalSpy>
#include <gmock/gmock.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct SystemStatsMonitorTest : testing::Test
{
    PlataformaDePrueba plataforma;
    std::unique_ptr<SystemStatsMonitor> monitor;

    void empezar() { monitor = std::make_unique<SystemStatsMonitor>(plataforma); }
    void tick() { plataforma.m_reloj.avanzar(monitor->algoEnBarra() ? 2s : 5s); }
    void contar(std::uint64_t uso, std::uint64_t libre)
    {
        plataforma.m_contadores.ticks->user += uso;
        plataforma.m_contadores.ticks->idle += libre;
    }
    void fijarBateria(int porcentaje, bool enCorriente = false)
    {
        plataforma.m_bateria.actual = EstadoBateria{.porcentaje = porcentaje,
                                                    .cargando = enCorriente,
                                                    .enCorriente = enCorriente,
                                                    .minutosRestantes = {},
                                                    .ciclos = {},
                                                    .salud = {}};
    }
    /// Lets time pass until the battery was read once more.
    void hastaLaBateria()
    {
        for (const int antes = plataforma.m_bateria.lecturas; plataforma.m_bateria.lecturas == antes;)
            tick();
    }
    std::vector<Notificaciones::Aviso> &avisos() { return plataforma.m_notificaciones.enviados; }
    const RelojManual::Tarea &temporizador() { return plataforma.m_reloj.tareas().begin()->second; }
};

} // namespace

TEST_F(SystemStatsMonitorTest, theFirstSampleHasNoProcessorAndNoNetworkFigure)
{
    contar(500, 500);
    plataforma.m_contadores.bytes = {1000, 1000};
    empezar();
    EXPECT_EQ(monitor->cpu(), 0);
    EXPECT_THAT(monitor->historialCPU(), IsEmpty());
    EXPECT_EQ(monitor->bajada(), 0);
    EXPECT_EQ(monitor->subida(), 0);
    EXPECT_THAT(monitor->historialRed(), IsEmpty());
    EXPECT_DOUBLE_EQ(monitor->ram(), 7.0 / 16.0);
    EXPECT_THAT(monitor->historialRAM(), ElementsAre(7.0 / 16.0));
}

TEST_F(SystemStatsMonitorTest, everyTickPublishesWhatHappenedSinceTheLast)
{
    empezar();
    contar(25, 75);
    plataforma.m_contadores.bytes = {50'000, 10'000};
    plataforma.m_termico.actual = EstadoTermico::serious;
    const QSignalSpy muestras{monitor.get(), &SystemStatsMonitor::muestraChanged};
    tick();
    EXPECT_EQ(muestras.count(), 1);
    EXPECT_DOUBLE_EQ(monitor->cpu(), 0.25);
    EXPECT_THAT(monitor->historialCPU(), ElementsAre(0.25));
    EXPECT_DOUBLE_EQ(monitor->bajada(), 10'000);
    EXPECT_DOUBLE_EQ(monitor->subida(), 2'000);
    EXPECT_THAT(monitor->historialRed(), ElementsAre(12'000));
    EXPECT_EQ(monitor->termico(), EstadoTermico::serious);
}

TEST_F(SystemStatsMonitorTest, aFailingProcessorReadingKeepsFigureHistoryAndBase)
{
    empezar();
    contar(25, 75);
    tick();
    const auto ticks = std::exchange(plataforma.m_contadores.ticks, std::nullopt);
    tick();
    EXPECT_DOUBLE_EQ(monitor->cpu(), 0.25);
    EXPECT_EQ(monitor->historialCPU().size(), 1);
    plataforma.m_contadores.ticks = ticks;
    contar(50, 50);
    tick();
    EXPECT_DOUBLE_EQ(monitor->cpu(), 0.5) << "counted from the last good reading";
}

TEST_F(SystemStatsMonitorTest, aProcessorThatCountedNothingKeepsItsFigureAndItsHistory)
{
    empezar();
    contar(25, 75);
    tick();
    tick();
    EXPECT_DOUBLE_EQ(monitor->cpu(), 0.25);
    EXPECT_EQ(monitor->historialCPU().size(), 1);
}

TEST_F(SystemStatsMonitorTest, unreadableMemoryCountsAsZero)
{
    empezar();
    plataforma.m_contadores.enUso.reset();
    tick();
    EXPECT_EQ(monitor->ram(), 0);
    EXPECT_THAT(monitor->historialRAM(), ElementsAre(7.0 / 16.0, 0.0));
}

TEST_F(SystemStatsMonitorTest, aWrappingCounterPushesNothingButAZero)
{
    plataforma.m_contadores.bytes = {4'294'967'000, 70};
    empezar();
    plataforma.m_contadores.bytes = {200, 5000};
    tick();
    EXPECT_EQ(monitor->bajada(), 0);
    EXPECT_EQ(monitor->subida(), 0);
    EXPECT_THAT(monitor->historialRed(), ElementsAre(0.0));
    plataforma.m_contadores.bytes = {5200, 5000};
    tick();
    EXPECT_DOUBLE_EQ(monitor->bajada(), 1000) << "the next difference is reckoned from after the wrap";
}

TEST_F(SystemStatsMonitorTest, noHistoryGrowsBeyondThirty)
{
    empezar();
    for (int i = 0; i < 100; ++i) {
        contar(1, 1);
        tick();
    }
    EXPECT_EQ(monitor->historialCPU().size(), 30);
    EXPECT_EQ(monitor->historialRAM().size(), 30);
    EXPECT_EQ(monitor->historialRed().size(), 30);
}

TEST_F(SystemStatsMonitorTest, ticksEveryFiveSecondsAndEveryTwoWhileTheBarShowsFigures)
{
    empezar();
    ASSERT_EQ(plataforma.m_reloj.tareas().size(), 1);
    EXPECT_EQ(temporizador().periodo, 5s);
    EXPECT_EQ(temporizador().tolerancia, 1s);
    monitor->fijarBarraRed(true);
    ASSERT_EQ(plataforma.m_reloj.tareas().size(), 1);
    EXPECT_EQ(temporizador().periodo, 2s);
    EXPECT_EQ(temporizador().tolerancia, 400ms);
    monitor->fijarBarraCPU(true);
    monitor->fijarBarraRed(false);
    EXPECT_EQ(temporizador().periodo, 2s);
    monitor->fijarBarraCPU(false);
    EXPECT_EQ(temporizador().periodo, 5s);
}

TEST_F(SystemStatsMonitorTest, aFigureTurnedOnStartsAFreshInterval)
{
    empezar();
    plataforma.m_reloj.avanzar(4s);
    monitor->fijarBarraRAM(true);
    const QSignalSpy muestras{monitor.get(), &SystemStatsMonitor::muestraChanged};
    plataforma.m_reloj.avanzar(1s);
    EXPECT_EQ(muestras.count(), 0);
    plataforma.m_reloj.avanzar(1s);
    EXPECT_EQ(muestras.count(), 1);
}

TEST_F(SystemStatsMonitorTest, theGraphAloneIsNoFigureAndDoesNotRestartTheTimer)
{
    empezar();
    monitor->fijarBarraGrafica(false);
    const int numero = plataforma.m_reloj.tareas().begin()->first;
    monitor->fijarBarraGrafica(true);
    EXPECT_FALSE(monitor->algoEnBarra());
    EXPECT_EQ(plataforma.m_reloj.tareas().begin()->first, numero);
    EXPECT_EQ(temporizador().periodo, 5s);
}

TEST_F(SystemStatsMonitorTest, settingsStartFromTheirDefaultsAndAreRememberedWhenChanged)
{
    empezar();
    EXPECT_FALSE(monitor->barraCPU());
    EXPECT_FALSE(monitor->barraRAM());
    EXPECT_FALSE(monitor->barraRed());
    EXPECT_TRUE(monitor->barraGrafica());
    EXPECT_EQ(monitor->avisoBateria(), 15);
    const QSignalSpy ajustes{monitor.get(), &SystemStatsMonitor::ajustesChanged};
    monitor->setProperty("barraCPU", true);
    monitor->setProperty("barraRAM", true);
    monitor->setProperty("barraRed", true);
    monitor->setProperty("barraGrafica", false);
    monitor->setProperty("avisoBateria", 25);
    monitor->setProperty("avisoBateria", 25);
    EXPECT_EQ(ajustes.count(), 5);

    const SystemStatsMonitor otro{plataforma};
    EXPECT_TRUE(otro.barraCPU());
    EXPECT_TRUE(otro.barraRAM());
    EXPECT_TRUE(otro.barraRed());
    EXPECT_FALSE(otro.barraGrafica());
    EXPECT_EQ(otro.avisoBateria(), 25);
    EXPECT_TRUE(otro.algoEnBarra());
}

TEST_F(SystemStatsMonitorTest, theFourSwitchesOfTheBarAreWrittenTogether)
{
    empezar();
    monitor->fijarBarraRAM(true);
    plataforma.m_preferencias.registrar("barraGrafica", false);
    EXPECT_TRUE(plataforma.m_preferencias.booleano("barraGrafica")) << "stored, not only registered";
    EXPECT_TRUE(plataforma.m_preferencias.booleano("barraRAM"));
}

TEST_F(SystemStatsMonitorTest, theBatteryIsReadAtTheFirstTickAndThenAtOneInFifteen)
{
    fijarBateria(80);
    empezar();
    EXPECT_EQ(plataforma.m_bateria.lecturas, 1);
    EXPECT_EQ(monitor->bateria()->porcentaje, 80);
    plataforma.m_reloj.avanzar(74s);
    EXPECT_EQ(plataforma.m_bateria.lecturas, 1);
    plataforma.m_reloj.avanzar(1s);
    EXPECT_EQ(plataforma.m_bateria.lecturas, 2);
    monitor->fijarBarraCPU(true);
    plataforma.m_reloj.avanzar(30s);
    EXPECT_EQ(plataforma.m_bateria.lecturas, 3);
}

TEST_F(SystemStatsMonitorTest, aBatteryThatGoesIsAbsent)
{
    fijarBateria(80);
    empezar();
    plataforma.m_bateria.actual.reset();
    const QSignalSpy cambios{monitor.get(), &SystemStatsMonitor::bateriaChanged};
    hastaLaBateria();
    EXPECT_EQ(monitor->bateria(), std::nullopt);
    EXPECT_EQ(cambios.count(), 1);
    EXPECT_TRUE(monitor->property("bateria").isNull());
}

TEST_F(SystemStatsMonitorTest, aSlowBatteryIsPublishedWhenItAnswers)
{
    plataforma.m_bateria.lenta = true;
    fijarBateria(9);
    empezar();
    EXPECT_EQ(monitor->bateria(), std::nullopt);
    EXPECT_THAT(avisos(), IsEmpty());
    plataforma.m_bateria.responder();
    EXPECT_EQ(monitor->bateria()->porcentaje, 9);
    EXPECT_EQ(avisos().size(), 1);
}

TEST_F(SystemStatsMonitorTest, nothingCallsAMonitorThatIsGone)
{
    plataforma.m_bateria.lenta = true;
    fijarBateria(9);
    empezar();
    monitor.reset();
    plataforma.m_bateria.responder();
    plataforma.m_reloj.avanzar(10min);
    EXPECT_EQ(plataforma.m_bateria.lecturas, 1);
    EXPECT_THAT(avisos(), IsEmpty());
}

TEST_F(SystemStatsMonitorTest, theLowBatteryNoticeHasItsTextsAndAFixedIdentifier)
{
    fijarBateria(15);
    plataforma.m_bateria.actual->minutosRestantes = 42;
    empezar();
    ASSERT_EQ(avisos().size(), 1) << "the level equals the mark";
    EXPECT_EQ(avisos()[0].id, "bateria-baja");
    EXPECT_EQ(avisos()[0].titulo, "Batería al 15 %");
    EXPECT_EQ(avisos()[0].cuerpo, "Quedan unos 0 h 42 min. Conecta el cargador.");
    EXPECT_EQ(avisos()[0].sonido, Notificaciones::Sonido::normal);
}

TEST_F(SystemStatsMonitorTest, theNoticeComesOnceADischargeAndAgainAfterTheCharger)
{
    fijarBateria(12);
    empezar();
    hastaLaBateria();
    EXPECT_EQ(avisos().size(), 1);
    fijarBateria(12, true);
    hastaLaBateria();
    fijarBateria(12);
    hastaLaBateria();
    EXPECT_EQ(avisos().size(), 2);
}

TEST_F(SystemStatsMonitorTest, theNoticeWaitsForAServiceThatCanShowIt)
{
    plataforma.m_notificaciones.hay = false;
    fijarBateria(12);
    empezar();
    EXPECT_THAT(avisos(), IsEmpty());
    plataforma.m_notificaciones.hay = true;
    hastaLaBateria();
    EXPECT_EQ(avisos().size(), 1);
}

TEST_F(SystemStatsMonitorTest, aMarkOfZeroGivesNoNoticeAtAnyLevel)
{
    plataforma.m_preferencias.fijar("avisoBateria", std::int64_t{0});
    fijarBateria(0);
    empezar();
    hastaLaBateria();
    EXPECT_THAT(avisos(), IsEmpty());
}

TEST_F(SystemStatsMonitorTest, qmlReadsTheSameFiguresThroughProperties)
{
    fijarBateria(63);
    plataforma.m_bateria.actual->ciclos = 120;
    empezar();
    contar(50, 50);
    plataforma.m_contadores.bytes = {5000, 0};
    plataforma.m_termico.actual = EstadoTermico::desconocido;
    tick();
    EXPECT_DOUBLE_EQ(monitor->property("cpu").toDouble(), 0.5);
    EXPECT_DOUBLE_EQ(monitor->property("bajada").toDouble(), 1000);
    EXPECT_EQ(monitor->property("historialCPU").value<QList<double>>(), QList<double>{0.5});
    EXPECT_EQ(monitor->property("historialRAM").value<QList<double>>().size(), 2);
    EXPECT_EQ(monitor->property("historialRed").value<QList<double>>(), QList<double>{1000});
    EXPECT_EQ(monitor->property("termico").toInt(), 4);
    const QVariantMap bateria = monitor->property("bateria").toMap();
    EXPECT_EQ(bateria.value(QStringLiteral("porcentaje")).toInt(), 63);
    EXPECT_EQ(bateria.value(QStringLiteral("ciclos")).toInt(), 120);
    EXPECT_TRUE(bateria.value(QStringLiteral("salud")).isNull());
}
