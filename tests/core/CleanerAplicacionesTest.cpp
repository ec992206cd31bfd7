#include "tests/core/CleanerBanco.h"

using namespace ovanta;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

class CleanerAplicaciones : public pruebas::BancoCleaner
{
protected:
    CleanerAplicaciones() { plataforma.m_aplicaciones.paquetes[app] = "org.ejemplo.Lupa"; }

    ResultadoLimpieza desinstalar(std::vector<std::string> restos)
    {
        return QCoro::waitFor(cleaner().desinstalarAplicacion(app, "org.ejemplo.Lupa", std::move(restos)));
    }
    ResultadoLimpieza desactivar(const std::string &ruta)
    {
        return QCoro::waitFor(cleaner().desactivarAgenteInicio(ruta));
    }

    std::string app = casa.carpeta(casa.en("Applications/Lupa.app"));
    std::string cache = casa.carpeta(casa.en("Library/Caches/org.ejemplo.Lupa"));
    std::string ajustes = casa.archivo(casa.en("Library/Preferences/org.ejemplo.Lupa.plist"));
    std::string ajeno = casa.carpeta(casa.en("Library/Caches/org.ejemplo.Otra"));
};

} // namespace

TEST_F(CleanerAplicaciones, anApplicationGoesWithItsTraces)
{
    EXPECT_EQ(desinstalar({cache, ajustes}), (ResultadoLimpieza{3, 3 * 4096, {}}));
    EXPECT_THAT(rutas(cleaner().historial()), UnorderedElementsAre(app, cache, ajustes));
    EXPECT_EQ(cleaner().historial()[0].regla, "desinstalación");
    EXPECT_FALSE(hay(app));
}

TEST_F(CleanerAplicaciones, aTraceOfAnotherIdentifierIsSkippedSilently)
{
    EXPECT_EQ(desinstalar({ajeno, cache}), (ResultadoLimpieza{2, 2 * 4096, {}}));
    EXPECT_TRUE(hay(ajeno));
    EXPECT_FALSE(hay(cache));
}

TEST_F(CleanerAplicaciones, aTraceGivenTwiceMovesOnce)
{
    EXPECT_EQ(desinstalar({cache, cache}).movidos, 2);
}

TEST_F(CleanerAplicaciones, aRefusedApplicationEndsTheOperationWithTheRefusalAlone)
{
    plataforma.m_aplicaciones.paquetes[app] = "org.ejemplo.Impostora";
    EXPECT_EQ(desinstalar({cache}),
              (ResultadoLimpieza{
                  0, 0, {"La app cambió o no coincide con su identificador; vuelve a analizarla."}}));
    EXPECT_TRUE(hay(cache));
    EXPECT_FALSE(hay(archivo())) << "no batch began, so the history was not written";
}

TEST_F(CleanerAplicaciones, aRunningApplicationMustBeClosedFirst)
{
    plataforma.m_aplicaciones.abiertas = {"org.ejemplo.Lupa"};
    EXPECT_EQ(desinstalar({cache}),
              (ResultadoLimpieza{0, 0, {"Cierra la aplicación antes de desinstalarla: Lupa.app."}}));
    EXPECT_TRUE(hay(app));
    EXPECT_TRUE(hay(cache));
}

TEST_F(CleanerAplicaciones, theProgressStaysAsItIsDuringAnUninstallation)
{
    int cambios = 0;
    QObject::connect(&cleaner(), &Cleaner::progresoChanged, &cleaner(), [&] { ++cambios; });
    std::vector<bool> trabajando;
    QObject::connect(&cleaner(), &Cleaner::trabajandoChanged, &cleaner(),
                     [&] { trabajando.push_back(cleaner().trabajando()); });
    desinstalar({cache});
    EXPECT_EQ(cambios, 0);
    EXPECT_THAT(trabajando, ElementsAre(true, false));
}

TEST_F(CleanerAplicaciones, aTraceThatVanishesAfterItWasValidatedIsALine)
{
    plataforma.m_papelera.alReciclar = [this](const std::string &ruta) {
        if (ruta == app) std::filesystem::remove_all(cache);
        return std::string{};
    };
    const auto resultado = desinstalar({cache, ajustes});
    EXPECT_EQ(resultado.movidos, 2);
    EXPECT_THAT(resultado.errores, ElementsAre("org.ejemplo.Lupa: no se pudo mover"));
}

TEST_F(CleanerAplicaciones, aLaunchAgentMovesToTheTrash)
{
    const auto agente = casa.archivo(casa.en("Library/LaunchAgents/org.ejemplo.plist"));
    EXPECT_EQ(desactivar(agente), (ResultadoLimpieza{1, 4096, {}}));
    EXPECT_FALSE(hay(agente));
    EXPECT_EQ(cleaner().historial()[0].regla, "inicio de sesión");
}

TEST_F(CleanerAplicaciones, aLaunchAgentThatIsALinkIsProtected)
{
    const auto destino = casa.archivo(casa.en("Library/LaunchAgents/real.plist"));
    const auto enlace = casa.enlace(casa.en("Library/LaunchAgents/enlace.plist"), destino);
    EXPECT_EQ(desactivar(enlace), (ResultadoLimpieza{0, 0, {"Este elemento de inicio está protegido."}}));
    EXPECT_TRUE(hay(enlace));
    EXPECT_TRUE(hay(destino));
}

TEST_F(CleanerAplicaciones, everyRefusalOfALaunchAgentReadsTheSame)
{
    for (const std::string ruta : {"/Library/LaunchAgents/x.plist", "~/Library/LaunchAgents/no.plist", ""})
        EXPECT_THAT(desactivar(ruta).errores, ElementsAre("Este elemento de inicio está protegido."));
    EXPECT_THAT(cleaner().historial(), IsEmpty());
}
