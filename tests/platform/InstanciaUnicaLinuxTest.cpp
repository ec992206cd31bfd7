#include "platform/linux/InstanciaUnicaLinux.h"

#include "platform/linux/InicioDeSesion.h"
#include "tests/HogarTemporal.h"
#include "tests/platform/BusDePrueba.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

constexpr const char *variableDeFoco = "XDG_ACTIVATION_TOKEN";

/// A start of the program, with how often it was asked to come to the front.
struct Copia
{
    InstanciaUnicaLinux instancia;
    int activaciones = 0;

    Copia(const QDBusConnection &sesion, std::string carpeta) : instancia({sesion, std::move(carpeta), false})
    {
    }

    bool adquirir()
    {
        return instancia.adquirir([this] { ++activaciones; });
    }
};

std::string nombreLargo()
{
    return std::string(150, 'x');
}

} // namespace

class InstanciaUnicaLinuxTest : public testing::Test
{
protected:
    BusDePrueba bus;
    HogarTemporal carpeta;

    void TearDown() override { qunsetenv(variableDeFoco); }
};

TEST_F(InstanciaUnicaLinuxTest, aSecondStartBringsTheFirstToTheFrontAndEnds)
{
    Copia primera{bus.conectar(), carpeta.ruta()};
    Copia segunda{bus.conectar(), carpeta.ruta()};
    EXPECT_TRUE(primera.adquirir());
    EXPECT_FALSE(segunda.adquirir());
    EXPECT_TRUE(esperarA([&] { return primera.activaciones == 1; }));
    EXPECT_EQ(segunda.activaciones, 0);
    EXPECT_TRUE(std::filesystem::is_empty(carpeta.ruta())) << "the bus needs no lock file";
}

TEST_F(InstanciaUnicaLinuxTest, theRightToTheFocusIsHandedOver)
{
    Copia primera{bus.conectar(), carpeta.ruta()};
    Copia segunda{bus.conectar(), carpeta.ruta()};
    ASSERT_TRUE(primera.adquirir());
    qputenv(variableDeFoco, "ficha-7");
    EXPECT_FALSE(segunda.adquirir());
    qunsetenv(variableDeFoco);
    ASSERT_TRUE(esperarA([&] { return primera.activaciones == 1; }));
    EXPECT_EQ(qEnvironmentVariable(variableDeFoco), QStringLiteral("ficha-7"));
}

TEST_F(InstanciaUnicaLinuxTest, theNameIsFreeAgainWhenItsOwnerHasGone)
{
    BusDePrueba &elBus = bus;
    {
        const QString nombre = QStringLiteral("efimera");
        Copia primera{QDBusConnection::connectToBus(elBus.direccion(), nombre), carpeta.ruta()};
        ASSERT_TRUE(primera.adquirir());
        QDBusConnection::disconnectFromBus(nombre);
    }
    EXPECT_TRUE(esperarA([&] { return Copia(elBus.conectar(), carpeta.ruta()).adquirir(); }));
}

TEST_F(InstanciaUnicaLinuxTest, aDesktopMayActivateItToo)
{
    Copia primera{bus.conectar(), carpeta.ruta()};
    ASSERT_TRUE(primera.adquirir());
    auto llamada = QDBusMessage::createMethodCall(
        QStringLiteral("com.belmora.Ovanta"), QStringLiteral("/com/belmora/Ovanta"),
        QStringLiteral("org.freedesktop.Application"), QStringLiteral("Activate"));
    llamada << QVariantMap{};
    const QDBusPendingCall respuesta = bus.conectar().asyncCall(llamada);
    ASSERT_TRUE(esperarA([&] { return respuesta.isFinished(); }));
    EXPECT_FALSE(respuesta.isError()) << respuesta.error().message().toStdString();
    EXPECT_EQ(primera.activaciones, 1);
}

TEST_F(InstanciaUnicaLinuxTest, withoutABusALockDoesTheSame)
{
    {
        Copia primera{sinBus(), carpeta.ruta()};
        Copia segunda{sinBus(), carpeta.ruta()};
        EXPECT_TRUE(primera.adquirir());
        EXPECT_FALSE(segunda.adquirir());
        EXPECT_FALSE(segunda.adquirir());
        EXPECT_TRUE(esperarA([&] { return primera.activaciones == 2; }));
    }
    Copia tercera{sinBus(), carpeta.ruta()};
    EXPECT_TRUE(tercera.adquirir()) << "the lock goes with its holder";
}

TEST_F(InstanciaUnicaLinuxTest, whatAKilledProcessLeftIsNoHindrance)
{
    for (const char *nombre : {"com.belmora.Ovanta.lock", "com.belmora.Ovanta.sock"})
        std::ofstream{carpeta.en(nombre)} << "resto";
    Copia primera{sinBus(), carpeta.ruta()};
    Copia segunda{sinBus(), carpeta.ruta()};
    EXPECT_TRUE(primera.adquirir());
    EXPECT_FALSE(segunda.adquirir());
    EXPECT_TRUE(esperarA([&] { return primera.activaciones == 1; }));
}

TEST_F(InstanciaUnicaLinuxTest, aFolderThatIsOfNoUseDoesNotKeepTheProgramFromStarting)
{
    std::filesystem::create_symlink(carpeta.fuera("ajeno"), carpeta.en("com.belmora.Ovanta.lock"));
    for (const std::string &inutil : {carpeta.en("no existe"), carpeta.ruta()}) {
        Copia copia{sinBus(), inutil};
        EXPECT_TRUE(copia.adquirir()) << inutil;
    }
    EXPECT_FALSE(std::filesystem::exists(carpeta.fuera("ajeno"))) << "a link is not followed";
}

TEST_F(InstanciaUnicaLinuxTest, aPathTooLongForASocketStillLocks)
{
    const std::string larga = carpeta.en(nombreLargo());
    std::filesystem::create_directory(larga);
    Copia primera{sinBus(), larga};
    Copia segunda{sinBus(), larga};
    EXPECT_TRUE(primera.adquirir());
    EXPECT_FALSE(segunda.adquirir());
}

TEST(InicioDeSesion, isToldByTheUnitOrTheParent)
{
    struct Caso
    {
        std::string_view cgroup, padre;
        bool esperado;
    };
    const std::vector<Caso> casos = {
        {"0::/user.slice/user-1000.slice/user@1000.service/app.slice/"
         "app-com.belmora.Ovanta@autostart.service\n",
         "systemd\n", true},
        {"0::/user.slice/app.slice/dbus-:1.2-com.belmora.Ovanta@0.service", "systemd", true},
        {"0::/user.slice/app.slice/app-gnome-com.belmora.Ovanta-4321.scope\n", "gnome-shell\n", false},
        {"0::/user.slice/app.slice/app-com.belmora.Ovanta@0123abcd.service", "systemd", false},
        {"0::/user.slice/app.slice/app-org.kde.konsole@autostart.service", "bash", false},
        {"0::/user.slice/app.slice/app-org.kde.konsole@autostart.service/tab(12).scope", "fish", false},
        {"0::/user.slice/session-2.scope", "xfce4-session\n", true},
        {"0::/user.slice/session-2.scope", "gnome-session-b", true},
        {"0::/user.slice/session-2.scope", "dbus-daemon", true},
        {"0::/user.slice/session-2.scope", "xfce4-panel", false},
        {"", "", false},
    };
    for (const Caso &caso : casos)
        EXPECT_EQ(laSesionInicio(caso.cgroup, caso.padre), caso.esperado) << caso.cgroup << caso.padre;
}
