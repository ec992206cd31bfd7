#include "tests/x11/BancoX11.h"

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

constexpr int porSuVentana = 7;
constexpr int porSigterm = 128 + SIGTERM;
constexpr int porSigkill = 128 + SIGKILL;

std::uint64_t comienzoDe(std::int32_t pid)
{
    return inicioDe("/proc", pid).value_or(0);
}

class CerrarAplicaciones : public BancoX11
{
};

using Politica = AplicacionEnMarcha::Politica;

} // namespace

TEST_F(CerrarAplicaciones, oneThatWantsToQuitClosesByItsWindow)
{
    auto programa = abrirConVentana("cierra", "dispuesta");
    auto apps = crear();
    const auto app = esperarApp(*apps, "dispuesta");
    EXPECT_EQ(app.pid, programa->pid());
    EXPECT_EQ(app.nombre, "Prueba dispuesta");
    EXPECT_EQ(app.identificador, "dispuesta");
    EXPECT_FALSE(apps->terminada(app));
    apps->cerrar(app);
    EXPECT_EQ(programa->esperarFin(), porSuVentana);
    EXPECT_TRUE(apps->terminada(app));
}

TEST_F(CerrarAplicaciones, oneThatAsksToSaveStaysUntilItIsForced)
{
    auto programa = abrirConVentana("pregunta", "insegura");
    auto apps = crear();
    const auto app = esperarApp(*apps, "insegura");
    apps->cerrar(app);
    EXPECT_TRUE(programa->esperarQueDiga("preguntado"));
    EXPECT_FALSE(apps->terminada(app));
    apps->forzar(app);
    EXPECT_EQ(programa->esperarFin(), porSigkill);
    EXPECT_TRUE(apps->terminada(app));
}

TEST_F(CerrarAplicaciones, itsDialogueIsAskedToCloseToo)
{
    auto programa = abrirConVentana("pregunta", "con-dialogo");
    auto apps = crear();
    const auto app = esperarApp(*apps, "con-dialogo");
    apps->cerrar(app);
    ASSERT_TRUE(programa->esperarQueDiga("preguntado"));
    VentanasX11 ventanas{pantalla().nombre()};
    esperarVentanas(ventanas, programa->pid(), 2);
    apps->cerrar(app);
    EXPECT_TRUE(programa->esperarQueDiga("preguntado"));
    EXPECT_TRUE(programa->esperarQueDiga("preguntado")) << "one for each of its windows";
}

TEST_F(CerrarAplicaciones, oneThatIgnoresEverythingIsForced)
{
    auto programa = abrirConVentana("sordo", "sorda");
    auto apps = crear();
    const auto app = esperarApp(*apps, "sorda");
    apps->cerrar(app);
    EXPECT_TRUE(programa->esperarQueDiga("sordo"));
    apps->pedirFin({{app.pid, app.inicio}});
    EXPECT_FALSE(apps->terminada(app));
    apps->forzar(app);
    EXPECT_EQ(programa->esperarFin(), porSigkill);
}

TEST_F(CerrarAplicaciones, helpersThatOutliveItAreFoundAndAskedToEnd)
{
    auto programa = abrirConVentana("ayudantes", "numerosa");
    auto apps = crear();
    const auto app = esperarApp(*apps, "numerosa");
    EXPECT_EQ(apps->procesosDe(*app.ruta).size(), 3u);
    apps->cerrar(app);
    EXPECT_EQ(programa->esperarFin(), porSuVentana);
    const auto restos = apps->procesosDe(*app.ruta);
    ASSERT_EQ(restos.size(), 2u);
    apps->pedirFin(restos);
    for (const auto &resto : restos)
        EXPECT_TRUE(esperarA([&] { return !sigueVivo("/proc", resto.pid, resto.inicio); }));
    EXPECT_TRUE(apps->procesosDe(*app.ruta).empty());
}

TEST_F(CerrarAplicaciones, aSecondOneOfTheSameThatStillHasAWindowIsNoRemnant)
{
    auto primera = abrirConVentana("cierra", "doble");
    auto segunda = abrirConVentana("pregunta", "doble");
    auto apps = crear();
    const auto app = esperarApp(*apps, "doble");
    apps->cerrar(app);
    EXPECT_EQ(primera->esperarFin(), porSuVentana);
    ASSERT_TRUE(segunda->esperarQueDiga("preguntado"));
    apps->pedirFin(apps->procesosDe(*app.ruta));
    dejarPasar();
    EXPECT_TRUE(segunda->vive()) << "it waits for its user to save";
    apps->forzar(esperarApp(*apps, "doble"));
    EXPECT_EQ(segunda->esperarFin(), porSigkill);
}

TEST_F(CerrarAplicaciones, whereWindowsCannotBeListedOnlyForceEndsWhatShowsItself)
{
    auto programa = abrirConVentana("cierra", "escondida");
    EntornoProcesos entorno = EntornoProcesos::deEsteProceso();
    entorno.ventanasOcultas = true;
    auto apps = crear(entorno, std::nullopt);
    const auto app = esperarApp(*apps, "escondida");
    apps->cerrar(app);
    apps->pedirFin({{app.pid, app.inicio}});
    dejarPasar();
    EXPECT_TRUE(programa->vive());
    apps->forzar(app);
    EXPECT_EQ(programa->esperarFin(), porSigkill);
}

TEST_F(CerrarAplicaciones, forcingTakesTheHelpersAlong)
{
    auto programa = abrirConVentana("ayudantes", "numerosa-forzada");
    auto apps = crear();
    const auto app = esperarApp(*apps, "numerosa-forzada");
    const auto suyos = apps->procesosDe(*app.ruta);
    ASSERT_EQ(suyos.size(), 3u);
    apps->forzar(app);
    EXPECT_EQ(programa->esperarFin(), porSigkill);
    for (const auto &suyo : suyos)
        EXPECT_TRUE(esperarA([&] { return !sigueVivo("/proc", suyo.pid, suyo.inicio); }));
}

TEST_F(CerrarAplicaciones, withoutAWindowItGetsTheSignal)
{
    auto programa = abrir("mudo", "muda");
    auto apps = crear(EntornoProcesos::deEsteProceso(), std::nullopt);
    const auto app = esperarApp(*apps, "muda");
    apps->cerrar(app);
    EXPECT_EQ(programa->esperarFin(), porSigterm);
}

TEST_F(CerrarAplicaciones, whileTheServerHangsNobodyWithAWindowIsSignalled)
{
    auto programa = abrirConVentana("cierra", "con-trabajo");
    auto apps = crear();
    const auto app = esperarApp(*apps, "con-trabajo");
    ASSERT_EQ(::kill(pantalla().servidor().pid(), SIGSTOP), 0);
    apps->cerrar(app);
    dejarPasar();
    EXPECT_TRUE(programa->vive());
    ASSERT_EQ(::kill(pantalla().servidor().pid(), SIGCONT), 0);
    EXPECT_TRUE(esperarA([&] {
        apps->cerrar(app);
        return !programa->vive();
    }));
    EXPECT_EQ(programa->esperarFin(), porSuVentana);
}

TEST_F(CerrarAplicaciones, aRecordWithAnotherStartTimeTouchesNothing)
{
    auto programa = abrirConVentana("cierra", "otra");
    auto apps = crear();
    auto app = esperarApp(*apps, "otra");
    const auto buena = app;
    app.inicio += 1;
    EXPECT_TRUE(apps->terminada(app)) << "that one is gone: its pid belongs to another now";
    apps->cerrar(app);
    apps->forzar(app);
    apps->pedirFin({{app.pid, app.inicio}});
    EXPECT_FALSE(senalarSiEs("/proc", app.pid, app.inicio, SIGKILL));
    dejarPasar();
    EXPECT_TRUE(programa->vive());
    apps->cerrar(buena);
    EXPECT_EQ(programa->esperarFin(), porSuVentana);
}

TEST_F(CerrarAplicaciones, aForgedRecordReachesNeitherTheSessionNorThisProgram)
{
    auto programa = abrirConVentana("cierra", "senuelo");
    auto apps = crear();
    const auto app = esperarApp(*apps, "senuelo");
    const std::vector<std::int32_t> ajenos = {pantalla().servidor().pid(), pantalla().gestor().pid(),
                                              ::getpid(), ::getppid(), 1};
    for (const std::int32_t pid : ajenos) {
        for (const std::string &ruta : {*app.ruta, std::string{}, std::string{"/usr/bin/Xvfb"}}) {
            apps->cerrar(falsa(pid, comienzoDe(pid), ruta));
            apps->forzar(falsa(pid, comienzoDe(pid), ruta));
        }
        apps->pedirFin({{pid, comienzoDe(pid)}});
    }
    dejarPasar();
    EXPECT_TRUE(pantalla().servidor().vive());
    EXPECT_TRUE(pantalla().gestor().vive());
    EXPECT_TRUE(programa->vive());
}

TEST_F(CerrarAplicaciones, whatIsProhibitedStaysWhateverTheRecordSays)
{
    auto fondo = abrirConVentana("fondo", "fondo-escritorio");
    auto programa = abrirConVentana("cierra", "permitida");
    auto apps = crear();
    auto app = esperarApp(*apps, "permitida");
    app.politica = Politica::prohibida;
    apps->cerrar(app);
    apps->forzar(app);
    for (const auto &vista : apps->listar())
        EXPECT_NE(vista.ruta, rutas["fondo-escritorio"]) << "who draws the desktop is no application";
    apps->forzar(falsa(fondo->pid(), comienzoDe(fondo->pid()), rutas["fondo-escritorio"]));
    EXPECT_TRUE(apps->procesosDe(rutas["fondo-escritorio"]).empty());
    dejarPasar();
    EXPECT_TRUE(fondo->vive());
    EXPECT_TRUE(programa->vive());
}

TEST_F(CerrarAplicaciones, theApplicationThatRunsThisProgramIsNotTouched)
{
    auto programa = abrirConVentana("ayudantes", "terminal-nuestra");
    auto vistas = crear();
    const auto app = esperarApp(*vistas, "terminal-nuestra");
    const auto suyos = vistas->procesosDe(*app.ruta);
    const auto ayudante = std::ranges::find_if(suyos, [&](const auto &uno) { return uno.pid != app.pid; });
    ASSERT_NE(ayudante, suyos.end());
    EntornoProcesos entorno = EntornoProcesos::deEsteProceso();
    entorno.propio = ayudante->pid;
    auto apps = crear(entorno, pantalla().nombre());
    esperarApp(*apps, "terminal-nuestra", Politica::prohibida);
    apps->cerrar(app);
    apps->forzar(app);
    apps->pedirFin(suyos);
    EXPECT_TRUE(apps->procesosDe(*app.ruta).empty());
    dejarPasar();
    EXPECT_TRUE(programa->vive());
    for (const auto &suyo : suyos)
        EXPECT_TRUE(sigueVivo("/proc", suyo.pid, suyo.inicio));
    vistas->forzar(app);
    EXPECT_EQ(programa->esperarFin(), porSigkill);
}
