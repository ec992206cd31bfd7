#include "platform/linux/ReinicioLinux.h"

#include "tests/platform/BusDePrueba.h"

#include <gtest/gtest.h>
#include <thread>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

class ReinicioLinuxTest : public testing::Test
{
protected:
    BusDePrueba sesion;
    BusDePrueba sistema;

    static std::unique_ptr<ServidorSimulado> servicio(BusDePrueba &bus, const char *nombre, const char *ruta,
                                                      const char *interfaz, const char *metodo,
                                                      const char *entrada, const char *codigo = "")
    {
        auto servidor = ServidorSimulado::sencillo(bus, QLatin1String(nombre), QLatin1String(ruta),
                                                   QLatin1String(interfaz));
        servidor->agregarMetodo(QLatin1String(interfaz), QLatin1String(metodo), QLatin1String(entrada), {},
                                QLatin1String(codigo));
        return servidor;
    }
    std::unique_ptr<ServidorSimulado> gnome(const char *codigo = "")
    {
        return servicio(sesion, "org.gnome.SessionManager", "/org/gnome/SessionManager",
                        "org.gnome.SessionManager", "Reboot", "", codigo);
    }
    std::unique_ptr<ServidorSimulado> login1()
    {
        return servicio(sistema, "org.freedesktop.login1", "/org/freedesktop/login1",
                        "org.freedesktop.login1.Manager", "Reboot", "b");
    }

    /// As the program does: from a thread in the background.
    void pedir(std::chrono::milliseconds limite = std::chrono::seconds{30})
    {
        std::thread([&] { ReinicioLinux{sesion.direccion(), sistema.direccion(), limite}.pedir(); }).join();
    }
};

using Llamadas = QList<QVariantList>;

} // namespace

TEST_F(ReinicioLinuxTest, gnomeIsAskedAndTheSystemIsNot)
{
    auto escritorio = gnome();
    auto login = login1();
    pedir();
    EXPECT_EQ(escritorio->llamadas(QStringLiteral("Reboot")), Llamadas{QVariantList{}});
    EXPECT_TRUE(login->llamadas(QStringLiteral("Reboot")).isEmpty());
}

TEST_F(ReinicioLinuxTest, mateShowsTheDialogueThatItHas)
{
    auto escritorio = servicio(sesion, "org.gnome.SessionManager", "/org/gnome/SessionManager",
                               "org.gnome.SessionManager", "Shutdown", "");
    auto login = login1();
    pedir();
    EXPECT_EQ(escritorio->llamadas(QStringLiteral("Shutdown")), Llamadas{QVariantList{}});
    EXPECT_TRUE(login->llamadas(QStringLiteral("Reboot")).isEmpty());
}

TEST_F(ReinicioLinuxTest, kdeShowsItsQuestion)
{
    auto escritorio =
        servicio(sesion, "org.kde.LogoutPrompt", "/LogoutPrompt", "org.kde.LogoutPrompt", "promptReboot", "");
    auto login = login1();
    pedir();
    EXPECT_EQ(escritorio->llamadas(QStringLiteral("promptReboot")), Llamadas{QVariantList{}});
    EXPECT_TRUE(login->llamadas(QStringLiteral("Reboot")).isEmpty());
}

TEST_F(ReinicioLinuxTest, anOlderKdeIsAskedInItsOwnWay)
{
    auto escritorio =
        servicio(sesion, "org.kde.ksmserver", "/KSMServer", "org.kde.KSMServerInterface", "logout", "iii");
    auto login = login1();
    pedir();
    EXPECT_EQ(escritorio->llamadas(QStringLiteral("logout")), (Llamadas{QVariantList{1, 1, -1}}));
    EXPECT_TRUE(login->llamadas(QStringLiteral("Reboot")).isEmpty());
}

TEST_F(ReinicioLinuxTest, xfceSavesTheSessionAndRestarts)
{
    auto escritorio = servicio(sesion, "org.xfce.SessionManager", "/org/xfce/SessionManager",
                               "org.xfce.Session.Manager", "Restart", "b");
    auto login = login1();
    pedir();
    EXPECT_EQ(escritorio->llamadas(QStringLiteral("Restart")), Llamadas{QVariantList{true}});
    EXPECT_TRUE(login->llamadas(QStringLiteral("Reboot")).isEmpty());
}

TEST_F(ReinicioLinuxTest, withoutASessionManagerTheSystemIsAsked)
{
    auto login = login1();
    pedir();
    EXPECT_EQ(login->llamadas(QStringLiteral("Reboot")), Llamadas{QVariantList{true}});
}

TEST_F(ReinicioLinuxTest, whoSaysNoIsNotOverruled)
{
    auto escritorio =
        gnome("raise dbus.exceptions.DBusException('no', name='org.gnome.SessionManager.Canceled')");
    auto login = login1();
    pedir();
    EXPECT_EQ(escritorio->llamadas(QStringLiteral("Reboot")).size(), 1);
    EXPECT_TRUE(login->llamadas(QStringLiteral("Reboot")).isEmpty());
}

TEST_F(ReinicioLinuxTest, aSessionManagerThatCannotRestartIsNotGoneAround)
{
    auto escritorio = servicio(sesion, "org.gnome.SessionManager", "/org/gnome/SessionManager",
                               "org.gnome.SessionManager", "Otro", "");
    auto login = login1();
    pedir();
    EXPECT_TRUE(login->llamadas(QStringLiteral("Reboot")).isEmpty());
}

TEST_F(ReinicioLinuxTest, aSessionManagerThatHangsIsWaitedForOnlySoLong)
{
    auto escritorio = gnome("import time; time.sleep(60)");
    auto login = login1();
    pedir(std::chrono::milliseconds{200});
    escritorio->matar();
    EXPECT_TRUE(login->llamadas(QStringLiteral("Reboot")).isEmpty());
}

TEST_F(ReinicioLinuxTest, withoutABusNothingHappens)
{
    auto login = login1();
    std::thread([&] { ReinicioLinux{{}, sistema.direccion()}.pedir(); }).join();
    std::thread([&] {
        ReinicioLinux{QStringLiteral("unix:path=/no/hay"), sistema.direccion()}.pedir();
    }).join();
    EXPECT_TRUE(login->llamadas(QStringLiteral("Reboot")).isEmpty());
}
