#include "tests/Medidas.h"
#include "tests/monitors/ApoyoMemoria.h"

#include <future>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::chrono_literals;
using testing::IsEmpty;

namespace {

using MemoryMonitorTest = MemoriaEn;

} // namespace

TEST_F(MemoryMonitorTest, startsWithNothingReadButTheTotal)
{
    const MemoryMonitor nuevo{plataforma};
    EXPECT_EQ(nuevo.total(), 16 * gib);
    EXPECT_EQ(nuevo.usada(), 0U);
    EXPECT_EQ(nuevo.estado(), EstadoMemoria::normal);
    EXPECT_EQ(nuevo.diasEncendido(), 0);
    EXPECT_THAT(nuevo.procesos(), IsEmpty());
    EXPECT_EQ(nuevo.ultima(), plataforma.m_reloj.ahora());
    const auto &temporizador = plataforma.m_reloj.tareas().begin()->second;
    EXPECT_EQ(temporizador.periodo, 10s);
    EXPECT_EQ(temporizador.tolerancia, 2s);
    EXPECT_TRUE(temporizador.repite);
}

TEST_F(MemoryMonitorTest, publishesTheReadingOfTheMachine)
{
    memoria().actual = {.apps = 5 * gib,
                        .wired = 2 * gib,
                        .comprimida = gib,
                        .cache = 4 * gib,
                        .libre = 3 * gib,
                        .swapouts = 900,
                        .swapUsado = 6 * gib,
                        .swapTotal = 8 * gib,
                        .nivel = MemoriaSistema::Nivel::tension,
                        .arranque = plataforma.m_reloj.ahora() - 49h};
    empezar();
    EXPECT_EQ(monitor->usada(), 8 * gib) << "neither cache nor free memory nor swap";
    EXPECT_DOUBLE_EQ(monitor->presion(), 0.5);
    EXPECT_EQ(monitor->cache(), 4 * gib);
    EXPECT_EQ(monitor->libre(), 3 * gib);
    EXPECT_EQ(monitor->swapUsado(), 6 * gib);
    EXPECT_EQ(monitor->swapTotal(), 8 * gib);
    EXPECT_EQ(monitor->swapSalidaPorSeg(), 0) << "one reading has no rate";
    EXPECT_EQ(monitor->nivelKernel(), EstadoMemoria::tension);
    EXPECT_EQ(monitor->diasEncendido(), 2);
}

TEST_F(MemoryMonitorTest, aTotalOfNothingHasNoPressure)
{
    memoria().total = 0;
    memoria().actual.apps = gib;
    empezar();
    EXPECT_EQ(monitor->presion(), 0.0);
}

TEST_F(MemoryMonitorTest, theRateOfSwapNeedsTwoReadingsAndSurvivesACounterThatWentBack)
{
    memoria().actual.swapouts = 1000;
    empezar();
    memoria().actual.swapouts = 7000;
    tick();
    EXPECT_DOUBLE_EQ(monitor->swapSalidaPorSeg(), 600.0);
    EXPECT_EQ(monitor->estado(), EstadoMemoria::critico);
    memoria().actual.swapouts = 10;
    tick();
    EXPECT_DOUBLE_EQ(monitor->swapSalidaPorSeg(), 600.0) << "the rate stays";
    memoria().actual.swapouts = 30;
    tick();
    EXPECT_DOUBLE_EQ(monitor->swapSalidaPorSeg(), 2.0) << "and the new counter is the base";
}

TEST_F(MemoryMonitorTest, twoReadingsCloseTogetherDivideByASecondAndHaveNoProcessorFigures)
{
    abrir(10, "Cosa");
    plataforma.m_procesos.muestras[0].tiempoCPU = 0;
    empezar();
    plataforma.m_procesos.muestras[0].tiempoCPU = 5'000'000'000;
    tick();
    EXPECT_DOUBLE_EQ(monitor->procesos().at(0).cpu, 50.0);
    plataforma.m_procesos.muestras[0].tiempoCPU = 6'000'000'000;
    memoria().actual.swapouts = 40;
    plataforma.m_reloj.avanzar(200ms);
    monitor->medir();
    leido(3);
    EXPECT_DOUBLE_EQ(monitor->swapSalidaPorSeg(), 40.0);
    EXPECT_EQ(monitor->procesos().at(0).cpu, 0.0);
}

TEST_F(MemoryMonitorTest, readingsNeverOverlapAndTheTotalIsReadAllTheSame)
{
    std::promise<void> freno;
    const std::shared_future<void> suelta = freno.get_future().share();
    memoria().alLeer = [suelta] { suelta.wait(); };
    monitor = std::make_unique<MemoryMonitor>(plataforma);
    ASSERT_TRUE(QTest::qWaitFor([&] { return memoria().lecturas == 1; }));
    memoria().total = 32 * gib;
    monitor->medir();
    plataforma.m_reloj.avanzar(10s);
    EXPECT_EQ(monitor->total(), 32 * gib);
    freno.set_value();
    leido(1);
    EXPECT_EQ(memoria().lecturas, 1);
    tick();
    EXPECT_EQ(memoria().lecturas, 2) << "once it is over the next tick reads again";
}

TEST_F(MemoryMonitorTest, anUnreadableMachineShowsZerosAndAnEmptyRanking)
{
    abrir(10, "Cosa");
    memoria().actual.apps = gib;
    memoria().actual.nivel = MemoriaSistema::Nivel::critico;
    empezar();
    EXPECT_EQ(monitor->procesos().size(), 1U);
    memoria().actual = {};
    plataforma.m_procesos.muestras.clear();
    tick();
    EXPECT_EQ(monitor->usada(), 0U);
    EXPECT_EQ(monitor->estado(), EstadoMemoria::normal);
    EXPECT_THAT(monitor->procesos(), IsEmpty());
}

TEST_F(MemoryMonitorTest, theDaysSurviveAReadingWithoutTheMomentOfTheStart)
{
    memoria().actual.arranque = plataforma.m_reloj.ahora() - 24h * 15;
    empezar();
    EXPECT_EQ(monitor->recomendaciones().at(0).id, "uptime");
    memoria().actual.arranque.reset();
    tick();
    EXPECT_EQ(monitor->diasEncendido(), 15);
}

TEST_F(MemoryMonitorTest, namesAreComparedWithoutCaseButWithDiacritics)
{
    memoria().total = 100 * gib;
    for (const auto &[nombre, esperadas] :
         std::vector<std::pair<std::string, std::size_t>>{{"dOCKER", 1}, {"Döcker", 0}, {"LM STUDIO", 1}}) {
        plataforma.m_procesos.muestras.clear();
        enMarcha().abiertas.clear();
        abrir(10, nombre, gib);
        empezar();
        EXPECT_EQ(monitor->recomendaciones().size(), esperadas) << nombre;
    }
}

TEST_F(MemoryMonitorTest, aMonitorThatGoesWaitsForItsReading)
{
    std::atomic<bool> terminada = false;
    memoria().alLeer = [&] {
        std::this_thread::sleep_for(20ms);
        terminada = true;
    };
    monitor = std::make_unique<MemoryMonitor>(plataforma);
    monitor.reset();
    EXPECT_TRUE(terminada);
    QCoreApplication::processEvents();
}
