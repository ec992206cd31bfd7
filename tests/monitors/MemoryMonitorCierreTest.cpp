#include "tests/monitors/ApoyoMemoria.h"

#include <optional>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

struct MemoryMonitorCierre : MemoriaEn
{
    template <typename T>
    struct Pedido
    {
        std::optional<T> resultado;
        std::chrono::milliseconds esperado{0};
    };

    /// Runs a closing to its end; whenever it waits, the clock is moved by what it waits for.
    template <typename T>
    Pedido<T> hastaElFin(QCoro::Task<T> tarea)
    {
        Pedido<T> pedido;
        auto guardar = [&pedido](T resultado) { pedido.resultado = std::move(resultado); };
        auto fin = tarea.then(std::move(guardar));
        while (!pedido.resultado) {
            QTest::qWait(1);
            const auto espera = pausaPendiente();
            if (!espera) continue;
            pedido.esperado += *espera;
            plataforma.m_reloj.avanzar(*espera);
        }
        EXPECT_TRUE(QTest::qWaitFor([&] { return !monitor->leyendo(); }));
        return pedido;
    }
    /// The wait that was asked for last; the monitor's own timer repeats.
    std::optional<std::chrono::milliseconds> pausaPendiente() const
    {
        for (const auto &[numero, tarea] : plataforma.m_reloj.tareas())
            if (!tarea.repite) return tarea.periodo;
        return std::nullopt;
    }
    Pedido<ResultadoCierre> cerrar(const std::set<std::int32_t> &pids)
    {
        return hastaElFin(monitor->cerrarAplicaciones(pids));
    }
    Pedido<std::vector<std::string>> forzar(const std::set<std::int32_t> &pids)
    {
        return hastaElFin(monitor->forzarSalida(pids));
    }
};

} // namespace

TEST_F(MemoryMonitorCierre, oneApplicationClosesAndAnotherStays)
{
    abrir(10, "Uno");
    abrir(20, "Dos");
    enMarcha().sordas = {20};
    empezar();
    const auto pedido = cerrar({10, 20});
    EXPECT_THAT(enMarcha().pedidas, ElementsAre(10, 20));
    EXPECT_THAT(pedido.resultado->cerradas, ElementsAre("Uno"));
    EXPECT_THAT(pedido.resultado->sinCerrar, ElementsAre(Pair(20, "Dos")));
    EXPECT_EQ(pedido.esperado, 16 * 500ms + 1s)
        << "sixteen rounds, then a moment for the helpers of the first";
    EXPECT_EQ(enMarcha().preguntas, 16 + 16 + 2) << "both in every round, and each at the end";
}

TEST_F(MemoryMonitorCierre, theWaitEndsWhenAllHaveQuit)
{
    abrir(10, "Uno");
    empezar();
    const auto pedido = cerrar({10});
    EXPECT_EQ(pedido.esperado, 1s);
    EXPECT_EQ(enMarcha().preguntas, 2);
}

TEST_F(MemoryMonitorCierre, anApplicationThatQuitByItselfMeanwhileIsInNeitherList)
{
    abrir(10, "Uno");
    empezar();
    enMarcha().salir(10);
    const int lecturas = memoria().lecturas;
    const auto pedido = cerrar({10});
    EXPECT_EQ(*pedido.resultado, ResultadoCierre{});
    EXPECT_EQ(pedido.esperado, 0ms);
    EXPECT_THAT(enMarcha().pedidas, IsEmpty());
    EXPECT_EQ(memoria().lecturas, lecturas + 1) << "and everything is read again";
}

TEST_F(MemoryMonitorCierre, aPidThatWentToAnotherProcessIsLeftAlone)
{
    abrir(10, "Uno");
    empezar();
    enMarcha().abiertas[0].inicio += 1;
    EXPECT_EQ(*cerrar({10}).resultado, ResultadoCierre{});
    EXPECT_THAT(enMarcha().pedidas, IsEmpty());
}

TEST_F(MemoryMonitorCierre, aPidThatWentToAnotherProcessIsNotForcedEither)
{
    abrir(10, "Uno");
    empezar();
    enMarcha().abiertas[0].inicio += 1;
    EXPECT_THAT(*forzar({10}).resultado, IsEmpty());
    EXPECT_THAT(enMarcha().forzadas, IsEmpty());
}

TEST_F(MemoryMonitorCierre, aPidThatWasNeverPublishedIsLeftAlone)
{
    abrir(10, "Uno");
    empezar();
    enMarcha().abiertas.push_back(enMarcha().abiertas[0]);
    enMarcha().abiertas.back().pid = 11;
    EXPECT_EQ(*cerrar({11}).resultado, ResultadoCierre{});
    EXPECT_THAT(enMarcha().pedidas, IsEmpty());
}

TEST_F(MemoryMonitorCierre, whatMayNotBeEndedIsLeftAloneEvenByAStaleList)
{
    for (const int pid : {10, 20, 30, 40, 50})
        abrir(pid, "App" + std::to_string(pid));
    empezar();
    auto &abiertas = enMarcha().abiertas;
    abiertas[0].identificador = "com.belmora.Ovanta";
    abiertas[1].identificador = "com.apple.finder";
    abiertas[2].identificador = "com.apple.dock";
    abiertas[3].identificador = "com.apple.loginwindow";
    abiertas[4].politica = AplicacionEnMarcha::Politica::prohibida;
    EXPECT_EQ(*cerrar({10, 20, 30, 40, 50}).resultado, ResultadoCierre{});
    EXPECT_THAT(*forzar({10, 20, 30, 40, 50}).resultado, IsEmpty());
    EXPECT_THAT(enMarcha().pedidas, IsEmpty());
    EXPECT_THAT(enMarcha().forzadas, IsEmpty());
}

TEST_F(MemoryMonitorCierre, whatOutlivesAnApplicationIsAskedToEnd)
{
    abrir(10, "Uno");
    enMarcha().restos = {{11, 7}, {12, 8}};
    empezar();
    cerrar({10});
    EXPECT_THAT(enMarcha().rutasDeRestos, ElementsAre("/Applications/Uno.app"));
    EXPECT_EQ(enMarcha().terminados, enMarcha().restos);
}

TEST_F(MemoryMonitorCierre, theSystemsOwnApplicationsKeepTheirHelpers)
{
    abrir(10, "Uno");
    abrir(20, "Dos");
    enMarcha().abiertas[0].identificador = "com.apple.mail";
    empezar();
    enMarcha().abiertas[1].ruta = "/System/Applications/Dos.app";
    const auto pedido = cerrar({10, 20});
    EXPECT_THAT(pedido.resultado->cerradas, ElementsAre("Uno", "Dos"));
    EXPECT_EQ(pedido.esperado, 0ms);
    EXPECT_THAT(enMarcha().rutasDeRestos, IsEmpty());
}

TEST_F(MemoryMonitorCierre, whatFellOffTheRankingCanStillBeClosedWhileItRuns)
{
    abrir(10, "Uno", 1);
    empezar();
    for (int i = 0; i < 25; ++i)
        abrir(100 + i, "Grande" + std::to_string(i));
    tick();
    EXPECT_EQ(std::ranges::find(monitor->procesos(), 10, &Proceso::id), monitor->procesos().end());
    EXPECT_THAT(cerrar({10}).resultado->cerradas, ElementsAre("Uno"));
}

TEST_F(MemoryMonitorCierre, theNameFallsBackToTheIdentifierAndToAWord)
{
    AplicacionEnMarcha app;
    app.identificador = "org.a";
    app.nombre = "A";
    EXPECT_EQ(nombreAlCerrar(app), "A");
    EXPECT_EQ(nombreAlForzar(app), "A");
    app.nombre.reset();
    EXPECT_EQ(nombreAlCerrar(app), "org.a");
    EXPECT_EQ(nombreAlForzar(app), "Aplicación");
    app.identificador.reset();
    EXPECT_EQ(nombreAlCerrar(app), "Aplicación");
}

TEST_F(MemoryMonitorCierre, forcingWaitsTenRoundsAndNamesThoseThatEnded)
{
    abrir(10, "Uno");
    abrir(20, "Dos");
    enMarcha().inmortales = {20};
    empezar();
    const auto pedido = forzar({10, 20});
    EXPECT_THAT(enMarcha().forzadas, ElementsAre(10, 20));
    EXPECT_THAT(*pedido.resultado, ElementsAre("Uno"));
    EXPECT_EQ(pedido.esperado, 10 * 300ms + 1s);
    EXPECT_THAT(enMarcha().rutasDeRestos, ElementsAre("/Applications/Uno.app"));
}

TEST_F(MemoryMonitorCierre, whatStayedOpenIsForcedAsTheProcessItWasThen)
{
    abrir(10, "Uno");
    enMarcha().sordas = {10};
    empezar();
    cerrar({10});
    // None of its processes can be measured any more: it can still be forced.
    plataforma.m_procesos.muestras.clear();
    tick();
    EXPECT_THAT(*forzar({10}).resultado, ElementsAre("Uno"));
}

TEST_F(MemoryMonitorCierre, aNewProcessUnderThePidOfWhatStayedOpenIsNotForced)
{
    abrir(10, "Uno");
    enMarcha().sordas = {10};
    empezar();
    cerrar({10});
    enMarcha().abiertas.clear();
    plataforma.m_procesos.muestras.clear();
    abrir(10, "Otra");
    enMarcha().abiertas[0].inicio += 1;
    plataforma.m_procesos.muestras[0].inicio += 1;
    tick();
    EXPECT_THAT(*forzar({10}).resultado, IsEmpty());
    EXPECT_THAT(enMarcha().forzadas, IsEmpty());
}

TEST_F(MemoryMonitorCierre, theRestartIsAskedForOnce)
{
    empezar();
    QCoro::waitFor(monitor->pedirReinicio());
    EXPECT_EQ(plataforma.m_reinicio.pedidos, 1);
}
