#include "tests/ui/ApoyoMemoriaVista.h"

#include <gmock/gmock.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(MemoriaEstado, closingWhatHadAlreadyGoneSaysSo)
{
    poner(10, "Uno", gib);
    empezar();
    estado->marcar(10, true);
    enMarcha().salir(10);
    estado->pedirCierre();
    EXPECT_TRUE(estado->confirmandoCierre());
    estado->confirmarCierre();
    EXPECT_FALSE(estado->confirmandoCierre());
    EXPECT_TRUE(estado->cerrando());
    hastaCerrar();
    EXPECT_EQ(estado->resultadoCierre(), QStringLiteral("Las apps seleccionadas ya no estaban abiertas."));
    EXPECT_EQ(estado->textoForzar(), QString());
    EXPECT_FALSE(estado->haySeleccion());
}

TEST_F(MemoriaEstado, oneClosesAnotherWaitsAndCanBeForced)
{
    poner(10, "Uno", gib);
    poner(20, "Dos", gib);
    enMarcha().sordas = {20};
    empezar();
    estado->marcar(10, true);
    estado->marcar(20, true);
    estado->pedirCierre();
    estado->confirmarCierre();
    estado->pedirCierre();
    EXPECT_FALSE(estado->confirmandoCierre()) << "nothing else is closed meanwhile";
    hastaCerrar();
    EXPECT_TRUE(
        estado->resultadoCierre().startsWith(QStringLiteral("Cerradas: Uno. Siguen abiertas: Dos. ")));
    EXPECT_EQ(estado->textoForzar(), QStringLiteral("Forzar salida de Dos"));
    estado->pedirForzar();
    EXPECT_TRUE(estado->confirmandoForzar());
    estado->confirmarForzar();
    hastaCerrar();
    EXPECT_THAT(enMarcha().forzadas, ElementsAre(20));
    EXPECT_EQ(estado->resultadoCierre(), QStringLiteral("Forzada la salida de Dos."));
    EXPECT_EQ(estado->textoForzar(), QString());
}

TEST_F(MemoriaEstado, nothingHappensWithoutAConfirmation)
{
    poner(10, "Uno", gib);
    empezar();
    estado->confirmarCierre();
    estado->confirmarForzar();
    estado->confirmarReinicio();
    estado->pedirCierre();
    EXPECT_FALSE(estado->confirmandoCierre()) << "nothing is selected";
    estado->pedirForzar();
    EXPECT_FALSE(estado->confirmandoForzar()) << "nothing refused to close";
    estado->marcar(10, true);
    estado->pedirCierre();
    estado->cancelarCierre();
    estado->confirmarCierre();
    EXPECT_FALSE(estado->cerrando());
    EXPECT_THAT(enMarcha().pedidas, IsEmpty());
    EXPECT_EQ(plataforma.m_reinicio.pedidos, 0);
}

TEST_F(MemoriaEstado, aRecommendationClosesItsApplicationAlone)
{
    poner(10, "Uno", 8 * gib);
    poner(20, "Dos", gib);
    empezar();
    estado->marcar(20, true);
    ASSERT_EQ(recomendaciones().size(), 1U);
    EXPECT_EQ(recomendaciones()[0].boton, QStringLiteral("Cerrar app"));
    estado->seguir(QStringLiteral("top-10"));
    EXPECT_TRUE(estado->confirmandoCierre());
    EXPECT_EQ(estado->textoCerrar(), QStringLiteral("Cerrar 1"));
    estado->confirmarCierre();
    hastaCerrar();
    EXPECT_THAT(enMarcha().pedidas, ElementsAre(10));
}

TEST_F(MemoriaEstado, aRecommendationAsksForTheRestart)
{
    lectura().swapUsado = 3 * gib;
    empezar();
    EXPECT_EQ(recomendaciones().at(0).boton, QStringLiteral("Reiniciar…"));
    estado->seguir(QStringLiteral("swap-viejo"));
    EXPECT_TRUE(estado->confirmandoReinicio());
    EXPECT_EQ(plataforma.m_reinicio.pedidos, 0);
    estado->confirmarReinicio();
    esperar([&] { return plataforma.m_reinicio.pedidos == 1; });
}

TEST_F(MemoriaEstado, aRecommendationLeadsToTheSimulators)
{
    plataforma.m_memoriaSistema.total = 64 * gib;
    poner(10, "Simulator", 2 * gib);
    empezar();
    EXPECT_EQ(recomendaciones().at(0).boton, QStringLiteral("Ver simuladores"));
    estado->seguir(QStringLiteral("dev-Simulator"));
    EXPECT_EQ(app().navegacion().seleccion(), Seccion::simuladores);
    EXPECT_FALSE(estado->haySeleccion());
}

TEST_F(MemoriaEstado, aRecommendationWithNothingToDoHasNoButton)
{
    lectura().swapUsado = 3 * gib;
    lectura().nivel = MemoriaSistema::Nivel::critico;
    empezar();
    EXPECT_EQ(recomendaciones().at(0).clave, QStringLiteral("swap-activo"));
    EXPECT_EQ(recomendaciones()[0].boton, QString());
}

TEST_F(MemoriaEstado, aMonitorThatDoesNotOpenIsToldInWords)
{
    empezar();
    enMarcha().hayMonitor = false;
    estado->abrirMonitorDeActividad();
    esperar([&] { return !estado->errorMonitor().isEmpty(); });
    EXPECT_EQ(estado->errorMonitor(), QStringLiteral("No se pudo abrir el Monitor de Actividad."));
    enMarcha().hayMonitor = true;
    estado->abrirMonitorDeActividad();
    esperar([&] { return estado->errorMonitor().isEmpty(); });
    EXPECT_EQ(enMarcha().monitorAbierto, 2);
}

TEST_F(MemoriaEstado, aClosingGoesOnWithoutItsScreen)
{
    poner(10, "Uno", gib);
    empezar();
    estado->marcar(10, true);
    estado->pedirCierre();
    estado->confirmarCierre();
    estado.reset();
    esperar([&] {
        plataforma.m_reloj.avanzar(500ms);
        return !enMarcha().rutasDeRestos.empty();
    });
    EXPECT_THAT(enMarcha().pedidas, ElementsAre(10));
}
