#include "core/Ejecutar.h"
#include "platform/simulada/PlataformaSimulada.h"
#include "platform/simulada/RelojManual.h"
#include "platform/simulada/SesionSimulada.h"
#include "tests/PlataformaDePrueba.h"

#include <gmock/gmock.h>

using namespace ovanta;
using namespace std::chrono_literals;
using testing::Each;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

namespace {

struct SimuladaSesion : testing::Test
{
    RegistroMutaciones registro;
    RelojManual reloj;
    SesionSimulada sesion{reloj, registro};

    std::optional<AplicacionEnMarcha> app(const std::string &nombre)
    {
        for (const AplicacionEnMarcha &una : sesion.listar())
            if (una.nombre == nombre) return una;
        return std::nullopt;
    }
    std::size_t procesosDe(const std::string &nombre)
    {
        const std::string ruta = "/Applications/" + nombre + ".app";
        const auto suyos = [&](const MuestraProceso &muestra) { return muestra.rutaApp == ruta; };
        const auto muestras = sesion.muestrear();
        return static_cast<std::size_t>(std::ranges::count_if(muestras, suyos));
    }
};

} // namespace

TEST_F(SimuladaSesion, isAMacThatIsWorkedAt)
{
    EXPECT_EQ(procesosDe("Google Chrome"), 41U);
    EXPECT_TRUE(app("Docker") && app("Simulator") && app("Mail") && app("Finder") && app("Dock"));
    const auto muestras = sesion.muestrear();
    const auto raiz = [](const MuestraProceso &muestra) {
        return muestra.nombre == "WindowServer" || muestra.nombre == "kernel_task";
    };
    EXPECT_TRUE(std::ranges::none_of(muestras, raiz)) << "nobody but root can measure these";
    EXPECT_THAT(muestras, Each(Field(&MuestraProceso::huella, testing::Gt(0U))));
    EXPECT_EQ(sesion.nucleos(), 8U);
}

TEST_F(SimuladaSesion, processorTimesNeverGoBack)
{
    auto antes = sesion.muestrear();
    for (int i = 0; i < 50; ++i) {
        reloj.avanzar(10s);
        const auto ahora = sesion.muestrear();
        ASSERT_EQ(ahora.size(), antes.size());
        for (std::size_t k = 0; k < ahora.size(); ++k) {
            EXPECT_GE(ahora[k].tiempoCPU, antes[k].tiempoCPU);
            EXPECT_EQ(ahora[k].inicio, antes[k].inicio);
        }
        antes = ahora;
    }
}

TEST_F(SimuladaSesion, anApplicationTakesAMomentToQuit)
{
    const auto navegador = *app("Google Chrome");
    sesion.cerrar(navegador);
    EXPECT_FALSE(sesion.terminada(navegador));
    reloj.avanzar(SesionSimulada::demoraAlSalir);
    EXPECT_TRUE(sesion.terminada(navegador));
    EXPECT_EQ(app("Google Chrome"), std::nullopt);
    EXPECT_EQ(procesosDe("Google Chrome"), 0U);
    EXPECT_EQ(registro.todas(),
              std::vector<Mutacion>({{Mutacion::Clase::aplicacion, "Google Chrome", "cerrar"}}));
}

TEST_F(SimuladaSesion, oneAsksToSaveAndStaysUntilItIsForced)
{
    const auto editor = *app("Visual Studio Code");
    sesion.cerrar(editor);
    reloj.avanzar(1h);
    EXPECT_FALSE(sesion.terminada(editor));
    sesion.forzar(editor);
    reloj.avanzar(1s);
    EXPECT_TRUE(sesion.terminada(editor));
}

TEST_F(SimuladaSesion, oneLeavesHelpersThatEndWhenTheyAreAsked)
{
    const auto docker = *app("Docker");
    sesion.cerrar(docker);
    reloj.avanzar(1s);
    EXPECT_TRUE(sesion.terminada(docker));
    EXPECT_EQ(procesosDe("Docker"), 1U);
    const auto restos = sesion.procesosDe(*docker.ruta);
    ASSERT_EQ(restos.size(), 1U);
    sesion.pedirFin({{restos[0].pid, restos[0].inicio + 1}});
    EXPECT_EQ(procesosDe("Docker"), 1U) << "a process that only has the same pid";
    sesion.pedirFin(restos);
    EXPECT_EQ(procesosDe("Docker"), 0U);
    EXPECT_THAT(sesion.procesosDe(*docker.ruta), IsEmpty());
    EXPECT_EQ(registro.objetos(Mutacion::Clase::aplicacion).size(), 3U);
}

TEST_F(SimuladaSesion, anApplicationThatOnlyHasThePidIsLeftAlone)
{
    auto otra = *app("Slack");
    otra.inicio += 1;
    EXPECT_TRUE(sesion.terminada(otra));
    sesion.cerrar(otra);
    sesion.forzar(otra);
    reloj.avanzar(1s);
    EXPECT_TRUE(app("Slack"));
}

TEST_F(SimuladaSesion, anApplicationMayQuitByItself)
{
    sesion.salir("Slack");
    reloj.avanzar(1s);
    EXPECT_EQ(app("Slack"), std::nullopt);
    EXPECT_THAT(registro.todas(), IsEmpty());
}

TEST_F(SimuladaSesion, theMonitorOfActivityIsAnApplicationOfTheSystem)
{
    EXPECT_TRUE(sesion.abrirMonitorDeActividad());
    EXPECT_THAT(registro.objetos(Mutacion::Clase::archivoMostrado),
                ElementsAre("/System/Applications/Utilities/Activity Monitor.app"));
}

TEST(SimuladaReinicio, asksTheLoginWindowAndIgnoresWhatItSays)
{
    pruebas::HerramientasDePrueba herramientas;
    herramientas.alEjecutar = [](const auto &, const auto &) -> std::string {
        throw ShellError::noEncontrado("osascript");
    };
    ReinicioSimulado{herramientas}.pedir();
    EXPECT_THAT(herramientas.llamadas,
                ElementsAre(ElementsAre("/usr/bin/osascript", "-e",
                                        "tell application \"loginwindow\" to «event aevtrrst»")));
    EXPECT_EQ(herramientas.ultimoLimite, 30.0);
}
