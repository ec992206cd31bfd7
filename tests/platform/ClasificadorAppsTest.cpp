#include "platform/linux/ClasificadorApps.h"

#include "platform/linux/GrupoApp.h"
#include "tests/HogarTemporal.h"
#include "tests/platform/ProcDePrueba.h"

#include <gtest/gtest.h>
#include <map>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

const std::string unidades = "0::/user.slice/user-1000.slice/user@1000.service/app.slice/";

class ClasificadorAppsTest : public testing::Test
{
protected:
    HogarTemporal hogar;
    EntradasDePrueba entradas{hogar.fuera()};
    ProcDePrueba proc{hogar.fuera("proc")};
    std::vector<VentanaVista> ventanas;
    std::optional<ClasificadorApps> clasificador;

    FotoProcesos foto(std::uint64_t ahora = ProcDePrueba::ahora)
    {
        if (!clasificador) clasificador.emplace(entradas.lugares(), proc.entorno());
        return {proc.procesos(), clasificador->clasificar(proc.procesos(), ventanas, ahora), ventanas, {}};
    }

    /// Pid by pid, the last part of its key.
    std::map<std::int32_t, std::string> claves(std::uint64_t ahora = ProcDePrueba::ahora)
    {
        const FotoProcesos f = foto(ahora);
        std::map<std::int32_t, std::string> resultado;
        for (std::size_t i = 0; i < f.procesos.size(); ++i)
            resultado[f.procesos[i].pid] =
                std::filesystem::path(f.pertenencias[i]->clave).filename().native();
        return resultado;
    }

    std::vector<AplicacionEnMarcha> apps()
    {
        const FotoProcesos f = foto();
        std::vector<AplicacionEnMarcha> lista;
        for (const GrupoApp &grupo : agrupar(f, propioYAncestros(proc.entorno())))
            lista.push_back(aplicacionDe(grupo, f));
        return lista;
    }

    static std::vector<std::string> lanzadoPor(const std::string &ruta, std::int32_t pid)
    {
        return {"HOME=/home/ana", "GIO_LAUNCHED_DESKTOP_FILE=" + ruta,
                "GIO_LAUNCHED_DESKTOP_FILE_PID=" + std::to_string(pid)};
    }
};

using Claves = std::map<std::int32_t, std::string>;
using Politica = AplicacionEnMarcha::Politica;

} // namespace

TEST_F(ClasificadorAppsTest, aBrowserIsOneApplicationWithASystemdUnit)
{
    entradas.poner("org.x.Nav", "Navegador", "navegador %U", "Icon=nav-icon");
    const std::string grupo = unidades + "app-gnome-org.x.Nav-100.scope\n";
    proc.poner(100, "/opt/nav/nav", {1, grupo});
    for (int i = 1; i < 40; ++i)
        proc.poner(100 + i, i % 2 ? "/opt/nav/nav" : "/usr/bin/otra-cosa", {100, grupo});
    const auto lista = apps();
    ASSERT_EQ(lista.size(), 1u);
    EXPECT_EQ(lista[0].pid, 100);
    EXPECT_EQ(lista[0].inicio, 1000u);
    EXPECT_EQ(lista[0].nombre, "Navegador");
    EXPECT_EQ(lista[0].icono, "nav-icon");
    EXPECT_EQ(lista[0].identificador, "org.x.Nav");
    EXPECT_EQ(lista[0].politica, Politica::regular);
    EXPECT_EQ(claves().size(), 40u);
    for (const auto &[pid, clave] : claves())
        EXPECT_EQ(clave, "org.x.Nav.desktop") << pid;
}

TEST_F(ClasificadorAppsTest, aBrowserIsOneApplicationWithoutSystemdToo)
{
    const auto ruta = entradas.poner("nav", "Navegador", "nav-estable %U");
    const auto entorno = lanzadoPor(ruta, 100);
    proc.poner(100, "/opt/nav/nav", {1, "0::/\n", entorno});
    proc.poner(101, "/opt/nav/zygote", {100, "0::/\n", entorno});
    proc.poner(102, "/opt/nav/nav", {101, "0::/\n", entorno});
    proc.poner(103, "/opt/nav/nav", {102, "0::/\n", {}});
    proc.poner(104, "/usr/lib/x/chrome_crashpad_handler", {100, "0::/\n", entorno});
    for (const auto &[pid, clave] : claves())
        EXPECT_EQ(clave, "nav.desktop") << pid;
}

TEST_F(ClasificadorAppsTest, whatATerminalStartsIsNotTheTerminal)
{
    const auto ruta = entradas.poner("terminal", "Terminal", "terminal");
    const auto entorno = lanzadoPor(ruta, 100);
    entradas.poner("nav", "Navegador", "/usr/lib/nav/nav");
    proc.poner(100, "/usr/bin/terminal", {1, "0::/\n", entorno});
    proc.poner(101, "/usr/bin/bash", {100, "0::/\n", entorno});
    proc.poner(102, "/usr/bin/make", {101, "0::/\n", entorno});
    proc.poner(103, "/usr/lib/nav/nav", {101, "0::/\n", entorno});
    proc.poner(104, "/usr/lib/nav/nav", {103, "0::/\n", entorno});
    EXPECT_EQ(
        claves(),
        (Claves{
            {100, "terminal.desktop"}, {101, ""}, {102, ""}, {103, "nav.desktop"}, {104, "nav.desktop"}}));
}

TEST_F(ClasificadorAppsTest, whatSharesTheUnitOfATerminalIsTheTerminal)
{
    entradas.poner("org.kde.konsole", "Konsole", "konsole");
    const std::string grupo = unidades + "app-org.kde.konsole-0a1b.scope\n";
    proc.poner(100, "/usr/bin/konsole", {1, grupo});
    proc.poner(101, "/usr/bin/bash", {100, grupo});
    // What the shell put into a unit of its own left it.
    proc.poner(102, "/usr/bin/make", {101, unidades + "run-r123.scope\n"});
    EXPECT_EQ(claves(),
              (Claves{{100, "org.kde.konsole.desktop"}, {101, "org.kde.konsole.desktop"}, {102, ""}}));
}

TEST_F(ClasificadorAppsTest, theProgramBehindAScriptIsTheApplication)
{
    const auto ruta = entradas.poner("juego", "Juego", "/usr/games/juego");
    proc.poner(100, "/usr/bin/dash", {1, "0::/\n", lanzadoPor(ruta, 100), {"/bin/sh", "/usr/games/juego"}});
    proc.poner(101, "/usr/share/juego/motor", {100, "0::/\n", lanzadoPor(ruta, 100)});
    proc.poner(200, "/usr/bin/python3.11", {1, "0::/\n", {}, {"python3", "-u", "/usr/games/juego"}});
    EXPECT_EQ(claves(), (Claves{{100, "juego.desktop"}, {101, "juego.desktop"}, {200, "juego.desktop"}}));
}

TEST_F(ClasificadorAppsTest, aWindowTellsWhoseTheProcessIs)
{
    entradas.poner("org.x.Editor", "Editor", "flatpak run org.x.Editor", "StartupWMClass=editor-ventana");
    ventanas = {{1, 100, "otro", "Editor-Ventana", false}, {2, 101, "org.x.editor", "", false}};
    proc.poner(100, "/raro/uno", {});
    proc.poner(101, "/raro/dos", {});
    proc.poner(102, "/raro/tres", {});
    EXPECT_EQ(claves(), (Claves{{100, "org.x.Editor.desktop"}, {101, "org.x.Editor.desktop"}, {102, ""}}));
}

TEST_F(ClasificadorAppsTest, aBrowserWithAWebApplicationsWindowIsStillTheBrowser)
{
    entradas.poner("nav", "Navegador", "/usr/lib/nav/nav");
    entradas.poner("correo-web", "Correo", "/usr/lib/nav/nav --app-id=x", "StartupWMClass=crx_x");
    ventanas = {{1, 100, "crx_x", "crx_x", false}, {2, 100, "nav", "nav", false}};
    proc.poner(100, "/usr/lib/nav/nav", {});
    EXPECT_EQ(claves(), (Claves{{100, "nav.desktop"}}));
}

TEST_F(ClasificadorAppsTest, aWindowWithoutAnEntryIsAnApplicationByItsProgram)
{
    ventanas = {{1, 100, "xterm", "XTerm", false}, {7, 101, "a", "b", false}};
    proc.poner(100, "/usr/bin/xterm", {});
    proc.poner(101, "/usr/bin/python3.11", {1, "0::/\n", {}, {"python3", "/home/ana/reloj.py"}});
    const auto lista = apps();
    ASSERT_EQ(lista.size(), 2u);
    EXPECT_EQ(lista[0].ruta, "/home/ana/reloj.py");
    EXPECT_EQ(lista[1].ruta, "/usr/bin/xterm");
    EXPECT_EQ(lista[1].nombre, "xterm");
    EXPECT_EQ(lista[1].politica, Politica::regular);
    EXPECT_EQ(lista[1].identificador, std::nullopt);
}

TEST_F(ClasificadorAppsTest, aUnitWithoutAnEntryIsOneApplicationAllTheSame)
{
    const std::string grupo = unidades + "app-gnome-org.x.Rara-100.scope\n";
    proc.poner(100, "/raro/uno", {1, grupo});
    proc.poner(101, "/raro/dos", {100, grupo});
    EXPECT_EQ(claves(), (Claves{{100, "org.x.Rara.scope"}, {101, "org.x.Rara.scope"}}));
    EXPECT_EQ(apps().at(0).politica, Politica::prohibida) << "nothing shows it";
    ventanas = {{1, 101, "", "", false}};
    EXPECT_EQ(apps().at(0).politica, Politica::regular);
    EXPECT_EQ(apps().at(0).nombre, "org.x.Rara");
    EXPECT_EQ(apps().at(0).pid, 101) << "the one with the window is the main one";
}

TEST_F(ClasificadorAppsTest, whatStaysInTheBackgroundIsAccessory)
{
    entradas.poner("oculta", "Oculta", "oculta", "NoDisplay=true");
    entradas.poner("agente", "Agente", "agente", {}, "autostart");
    entradas.poner("nube", "Nube", "nube");
    proc.poner(100, "/usr/bin/oculta", {});
    proc.poner(101, "/usr/bin/agente", {});
    proc.poner(102, "/usr/bin/nube", {1, unidades + "app-nube@autostart.service\n"});
    for (const auto &app : apps())
        EXPECT_EQ(app.politica, Politica::accesoria) << app.nombre.value_or("");
    ventanas = {{1, 102, "", "", false}};
    EXPECT_EQ(apps().at(0).nombre, "Nube");
    EXPECT_EQ(apps().at(0).politica, Politica::regular) << "it shows itself after all";
}

TEST_F(ClasificadorAppsTest, partsOfTheSessionAreNoApplications)
{
    entradas.poner("org.gnome.Shell", "GNOME Shell", "gnome-shell");
    entradas.poner("gestor", "Archivos", "gestor");
    ventanas = {{1, 103, "gestor", "gestor", true}, {2, 103, "gestor", "gestor", false}};
    proc.poner(100, "/usr/bin/gnome-shell", {});
    proc.poner(101, "/usr/lib/xorg/Xorg", {});
    proc.poner(102, "/usr/bin/dbus-daemon", {});
    proc.poner(103, "/usr/bin/gestor", {}); // it draws the desktop's background
    proc.poner(104, "/usr/libexec/gvfsd", {});
    EXPECT_TRUE(apps().empty());
}

TEST_F(ClasificadorAppsTest, processesOfOtherUsersAreNoApplications)
{
    entradas.poner("nav", "Navegador", "nav");
    proc.poner(100, "/usr/bin/nav", {1, "0::/\n", {}, {}, 1001});
    EXPECT_EQ(claves(), (Claves{{100, ""}}));
}

TEST_F(ClasificadorAppsTest, containersAndMachinesAreShownAndProhibited)
{
    const std::string docker = "0::/system.slice/docker-" + std::string(64, 'c') + ".scope\n";
    proc.poner(100, "/usr/bin/containerd-shim-runc-v2", {1, docker, {}, {}, 0});
    proc.poner(101, "/usr/sbin/nginx", {100, docker, {}, {}, 0});
    proc.poner(102, "/usr/sbin/nginx", {101, docker, {}, {}, 33});
    proc.poner(
        200, "/usr/bin/qemu-system-x86_64",
        {1, R"(0::/machine.slice/machine-qemu\x2d1\x2ddebian12.scope/libvirt/emulator)", {}, {}, 64055});
    proc.poner(201, "/usr/bin/qemu-system-x86_64",
               {1, "0::/\n", {}, {"qemu-system-x86_64", "-m", "2G", "-name", "guest=pruebas,debug=on"}});
    proc.poner(300, "/usr/sbin/nginx", {1, "0::/lxc.payload.web/x\n", {}, {}, 0});
    std::map<std::string, Politica> vistas;
    for (const auto &app : apps())
        vistas[app.nombre.value_or("")] = app.politica;
    EXPECT_EQ(vistas, (std::map<std::string, Politica>{{"Contenedor nginx", Politica::prohibida},
                                                       {"Contenedor web", Politica::prohibida},
                                                       {"Máquina virtual debian12", Politica::prohibida},
                                                       {"Máquina virtual pruebas", Politica::prohibida}}));
}

TEST_F(ClasificadorAppsTest, thisProgramAndTheTerminalThatRunsItAreProhibited)
{
    entradas.poner("terminal", "Terminal", "terminal");
    entradas.poner("com.belmora.Ovanta", "Ovanta", "OvantaBar");
    proc.poner(100, "/usr/bin/terminal", {});
    proc.poner(101, "/usr/bin/bash", {100});
    proc.poner(ProcDePrueba::propio, "/usr/bin/OvantaBar", {101});
    const auto lista = apps();
    ASSERT_EQ(lista.size(), 2u);
    for (const auto &app : lista)
        EXPECT_EQ(app.politica, Politica::prohibida) << app.nombre.value_or("");
}

TEST_F(ClasificadorAppsTest, whatIsDecidedIsNotLookedAtAgain)
{
    entradas.poner("nav", "Navegador", "nav");
    for (int pid = 100; pid < 150; ++pid)
        proc.poner(pid, "/usr/bin/nav", {});
    claves();
    EXPECT_EQ(clasificador->miradas(), 50u);
    claves();
    EXPECT_EQ(clasificador->miradas(), 0u);
    ventanas = {{1, 120, "", "", false}};
    claves();
    EXPECT_EQ(clasificador->miradas(), 1u) << "the one that got a window";
}

TEST_F(ClasificadorAppsTest, aYoungProcessIsLookedAtUntilItHasEnteredItsUnit)
{
    entradas.poner("org.x.Nav", "Navegador", "algo");
    proc.poner(100, "/raro/nav", {1, "0::/user.slice/user-1000.slice/session-2.scope\n"});
    EXPECT_EQ(claves(1010), (Claves{{100, ""}}));
    proc.poner(100, "/raro/nav", {1, unidades + "app-gnome-org.x.Nav-100.scope\n"});
    EXPECT_EQ(claves(1500), (Claves{{100, "org.x.Nav.desktop"}}));
}

TEST_F(ClasificadorAppsTest, aHelperStaysWithItsApplicationWhenThatIsGone)
{
    const auto ruta = entradas.poner("nav", "Navegador", "nav-estable");
    proc.poner(100, "/usr/bin/nav-motor", {1, "0::/\n", lanzadoPor(ruta, 100)});
    proc.poner(101, "/usr/bin/nav-motor", {100});
    EXPECT_EQ(claves(1020), (Claves{{100, "nav.desktop"}, {101, "nav.desktop"}}));
    proc.quitar(100);
    proc.poner(101, "/usr/bin/nav-motor", {1});
    EXPECT_EQ(claves(1030), (Claves{{101, "nav.desktop"}}));
}

TEST_F(ClasificadorAppsTest, anotherProcessUnderTheSamePidIsDecidedAnew)
{
    entradas.poner("nav", "Navegador", "nav");
    proc.poner(100, "/usr/bin/nav", {});
    EXPECT_EQ(claves(), (Claves{{100, "nav.desktop"}}));
    auto procesos = proc.procesos();
    procesos[0].inicio += 1;
    procesos[0].exe = std::make_shared<const std::string>("/usr/bin/otro");
    EXPECT_EQ(clasificador->clasificar(procesos, {}, ProcDePrueba::ahora).at(0)->clave, "");
}

TEST_F(ClasificadorAppsTest, aNewEntryIsSeenByWhatAlreadyRuns)
{
    proc.poner(100, "/usr/bin/nav", {});
    EXPECT_EQ(claves(), (Claves{{100, ""}}));
    entradas.poner("nav", "Navegador", "nav");
    std::filesystem::last_write_time(hogar.fuera("applications"),
                                     std::filesystem::file_time_type::clock::now() + std::chrono::seconds{5});
    EXPECT_EQ(claves(), (Claves{{100, "nav.desktop"}}));
}
