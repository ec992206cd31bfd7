#include "platform/linux/InicioAutomaticoLinux.h"
#include "platform/linux/EntradaAutostart.h"
#include "platform/simulada/EscritorioSimulado.h"
#include "platform/simulada/InicioSimulado.h"
#include "tests/HogarTemporal.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTest>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using testing::ElementsAre;
using testing::HasSubstr;
namespace fs = std::filesystem;

namespace {

struct InicioAutomaticoLinuxTest : testing::Test
{
    HogarTemporal casa;
    std::string configuracion = casa.en(".config");
    std::string usuario = configuracion + "/autostart";
    std::string todos = casa.fuera("xdg");
    std::string entrada = usuario + "/com.belmora.Ovanta.desktop";
    std::string deTodos = todos + "/autostart/com.belmora.Ovanta.desktop";
    std::string programa = "/usr/bin/OvantaBar";

    InicioAutomaticoLinux inicio() const
    {
        return InicioAutomaticoLinux(InicioAutomaticoLinux::Lugares::de(configuracion, todos, programa));
    }
    static void escribir(const std::string &ruta, const std::string &texto)
    {
        fs::create_directories(fs::path(ruta).parent_path());
        std::ofstream(ruta) << texto;
    }
    static std::string leer(const std::string &ruta)
    {
        std::ifstream archivo(ruta);
        return {std::istreambuf_iterator<char>(archivo), {}};
    }
};

std::string entradaCon(const std::string &lineas)
{
    return "[Desktop Entry]\nType=Application\nName=Ovanta\nExec=OvantaBar\n" + lineas;
}

} // namespace

TEST_F(InicioAutomaticoLinuxTest, turningItOnWritesTheEntryAndTurningItOffTakesItAway)
{
    auto ovanta = inicio();
    EXPECT_FALSE(ovanta.activado());
    ASSERT_TRUE(ovanta.fijar(true));
    EXPECT_TRUE(ovanta.activado());
    EXPECT_THAT(leer(entrada), HasSubstr("\nExec=\"/usr/bin/OvantaBar\"\n"));
    ASSERT_TRUE(ovanta.fijar(false));
    EXPECT_FALSE(ovanta.activado());
    EXPECT_FALSE(fs::exists(entrada));
    EXPECT_TRUE(fs::is_empty(usuario)) << "nothing is left beside it";
    EXPECT_TRUE(ovanta.fijar(false)) << "what is off can be turned off";
}

TEST_F(InicioAutomaticoLinuxTest, theUsersOwnSwitchesReadAsOff)
{
    auto ovanta = inicio();
    for (const char *lineas : {"Hidden=true\n", "X-GNOME-Autostart-enabled=false\n", " Hidden = true \r\n"}) {
        escribir(entrada, entradaCon(lineas));
        EXPECT_FALSE(ovanta.activado()) << lineas;
    }
    for (const char *lineas : {"", "Hidden=false\n", "X-GNOME-Autostart-enabled=true\n", "# Hidden=true\n",
                               "[Desktop Action nuevo]\nHidden=true\n"}) {
        escribir(entrada, entradaCon(lineas));
        EXPECT_TRUE(ovanta.activado()) << lineas;
    }
    escribir(entrada, "[Desktop Entry]\nName=Ovanta\n");
    EXPECT_FALSE(ovanta.activado()) << "an entry without a command starts nothing";
    escribir(entrada, std::string("\0\xff[[[=\nExec", 11));
    EXPECT_FALSE(ovanta.activado());
}

TEST_F(InicioAutomaticoLinuxTest, anEntryThatWasSwitchedOffIsSwitchedOnAgain)
{
    escribir(entrada, entradaCon("Hidden=true\n"));
    auto ovanta = inicio();
    ASSERT_TRUE(ovanta.fijar(true));
    EXPECT_TRUE(ovanta.activado());
}

TEST_F(InicioAutomaticoLinuxTest, anEntryForAllUsersIsOverriddenAndNeverTouched)
{
    const std::string suya = entradaCon("");
    escribir(deTodos, suya);
    auto ovanta = inicio();
    EXPECT_TRUE(ovanta.activado());
    ASSERT_TRUE(ovanta.fijar(false));
    EXPECT_FALSE(ovanta.activado());
    EXPECT_THAT(leer(entrada), HasSubstr("\nHidden=true\n"));
    EXPECT_EQ(leer(deTodos), suya);
    ASSERT_TRUE(ovanta.fijar(true));
    EXPECT_TRUE(ovanta.activado());
    EXPECT_EQ(leer(deTodos), suya);
}

TEST_F(InicioAutomaticoLinuxTest, theFoldersForAllUsersAreAskedInTheirOrder)
{
    const auto lugares = InicioAutomaticoLinux::Lugares::de("/casa/.config", "/uno:relativa::/dos", "/p");
    EXPECT_EQ(lugares.usuario, "/casa/.config/autostart");
    EXPECT_THAT(lugares.sistema, ElementsAre("/uno/autostart", "/dos/autostart"));
    EXPECT_THAT(InicioAutomaticoLinux::Lugares::de("/c", "", "/p").sistema,
                ElementsAre("/etc/xdg/autostart"));
    escribir(casa.fuera("primero") + "/autostart/com.belmora.Ovanta.desktop", entradaCon("Hidden=true\n"));
    escribir(deTodos, entradaCon(""));
    InicioAutomaticoLinux ovanta(
        InicioAutomaticoLinux::Lugares::de(configuracion, casa.fuera("primero") + ":" + todos, programa));
    EXPECT_FALSE(ovanta.activado());
}

TEST_F(InicioAutomaticoLinuxTest, aLinkInItsPlaceIsRefusedInWordsAndStays)
{
    fs::create_directories(usuario);
    fs::create_symlink("/no/existe", entrada);
    auto ovanta = inicio();
    EXPECT_FALSE(ovanta.activado());
    for (const bool si : {true, false}) {
        const auto hecho = ovanta.fijar(si);
        ASSERT_FALSE(hecho);
        EXPECT_EQ(hecho.error(),
                  "No se pudo cambiar «" + entrada + "»: es un enlace que Ovanta no ha creado");
    }
    EXPECT_TRUE(fs::is_symlink(entrada));
}

TEST_F(InicioAutomaticoLinuxTest, aFolderInItsPlaceIsRefusedInWords)
{
    fs::create_directories(entrada);
    auto ovanta = inicio();
    EXPECT_FALSE(ovanta.activado());
    const auto hecho = ovanta.fijar(true);
    ASSERT_FALSE(hecho);
    EXPECT_THAT(hecho.error(), HasSubstr("hay una carpeta con ese nombre"));
    EXPECT_FALSE(ovanta.activado());
}

TEST_F(InicioAutomaticoLinuxTest, aDanglingLinkOrAFileInPlaceOfTheFolderIsToldInWords)
{
    fs::create_directories(configuracion);
    auto ovanta = inicio();
    fs::create_symlink("/no/existe", usuario);
    auto hecho = ovanta.fijar(true);
    ASSERT_FALSE(hecho);
    EXPECT_THAT(hecho.error(), HasSubstr("No se pudo cambiar «" + usuario + "»: "));
    fs::remove(usuario);
    escribir(usuario, "no soy una carpeta");
    hecho = ovanta.fijar(true);
    ASSERT_FALSE(hecho);
    EXPECT_FALSE(ovanta.activado());
    EXPECT_EQ(leer(usuario), "no soy una carpeta");
}

TEST_F(InicioAutomaticoLinuxTest, aFolderThatCannotBeWrittenIsToldInWords)
{
    // No one can write there, not even root.
    InicioAutomaticoLinux ovanta(InicioAutomaticoLinux::Lugares::de("/proc/self", "", programa));
    const auto hecho = ovanta.fijar(true);
    ASSERT_FALSE(hecho);
    EXPECT_THAT(hecho.error(), HasSubstr("No se pudo cambiar «/proc/self/autostart»: "));
    EXPECT_FALSE(ovanta.activado());
}

TEST_F(InicioAutomaticoLinuxTest, aProgramThatNoEntryCanNameIsRefused)
{
    for (const char *malo : {"", "OvantaBar", "/opt/\xff\xfe/OvantaBar", "/opt/a=b/OvantaBar", "/opt/a\nb"}) {
        programa = malo;
        EXPECT_FALSE(inicio().fijar(true)) << malo;
        EXPECT_FALSE(fs::exists(entrada));
    }
}

TEST_F(InicioAutomaticoLinuxTest, aPercentSignIsDoubled)
{
    EXPECT_THAT(entradaQueArranca("/opt/al 100%/OvantaBar").value_or(""),
                HasSubstr("\nExec=\"/opt/al 100%%/OvantaBar\"\n"));
}

TEST_F(InicioAutomaticoLinuxTest, aRealSessionToolStartsTheProgramWhateverItsFolderIsCalled)
{
    const QString gio = QStandardPaths::findExecutable(QStringLiteral("gio"));
    if (gio.isEmpty()) GTEST_SKIP() << "no tool to launch an entry with";
    programa = casa.en("mi \"carpeta\" \\ con $HOME `id` y 'comillas'; #~/OvantaBar");
    const std::string testigo = casa.en("arrancado");
    escribir(programa, "#!/bin/sh\nprintf '%s' \"$0\" > \"" + testigo + "\"\n");
    fs::permissions(programa, fs::perms::owner_all);
    ASSERT_TRUE(inicio().fijar(true));
    EXPECT_EQ(QProcess::execute(gio, {QStringLiteral("launch"), QString::fromStdString(entrada)}), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return leer(testigo) == programa; }, 5'000)) << leer(testigo);
}

TEST_F(InicioAutomaticoLinuxTest, theEntriesAreValidForTheDesktopsOwnChecker)
{
    const QString juez = QStandardPaths::findExecutable(QStringLiteral("desktop-file-validate"));
    if (juez.isEmpty()) GTEST_SKIP() << "desktop-file-validate is not installed";
    const auto vale = [&] {
        QProcess proceso;
        proceso.start(juez, {QString::fromStdString(entrada)});
        proceso.waitForFinished();
        return proceso.exitCode() == 0 && proceso.readAllStandardOutput().isEmpty();
    };
    ASSERT_TRUE(inicio().fijar(true));
    EXPECT_TRUE(vale());
    escribir(entrada, entradaQueNoArranca());
    EXPECT_TRUE(vale());
}

TEST(InicioSimulado, theSimulatedMacRecordsEveryRequestAndCanRefuse)
{
    RegistroMutaciones registro;
    InicioSimulado inicio(registro);
    EXPECT_FALSE(inicio.activado());
    EXPECT_TRUE(inicio.fijar(true));
    EXPECT_TRUE(inicio.activado());
    inicio.fallar("La operación no está permitida");
    const auto hecho = inicio.fijar(false);
    ASSERT_FALSE(hecho);
    EXPECT_EQ(hecho.error(), "La operación no está permitida");
    EXPECT_TRUE(inicio.activado());
    EXPECT_THAT(registro.objetos(Mutacion::Clase::inicio), ElementsAre("alta", "baja"));
}

TEST(PoliticaSimulada, theSimulatedMacRecordsWhereTheProgramIsShown)
{
    RegistroMutaciones registro;
    PoliticaSimulada politica(registro);
    EXPECT_EQ(politica.actual(), PoliticaActivacion::Politica::regular);
    politica.fijar(PoliticaActivacion::Politica::accesoria);
    EXPECT_EQ(politica.actual(), PoliticaActivacion::Politica::accesoria);
    EXPECT_THAT(registro.objetos(Mutacion::Clase::politica), ElementsAre("accesoria"));
}
