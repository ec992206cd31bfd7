#include "platform/linux/AnfitrionBandejaLinux.h"
#include "platform/linux/AparienciaLinux.h"
#include "platform/linux/SuspensionLinux.h"
#include "tests/platform/BusDePrueba.h"

#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

const QString gestorSesiones = QStringLiteral("org.freedesktop.login1.Manager");

const QString portal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString rutaPortal = QStringLiteral("/org/freedesktop/portal/desktop");
const QString ajustesPortal = QStringLiteral("org.freedesktop.portal.Settings");

const QString vigilante = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString rutaVigilante = QStringLiteral("/StatusNotifierWatcher");
const QString hayAnfitrion = QStringLiteral("IsStatusNotifierHostRegistered");

const QString apariencia = QStringLiteral("org.freedesktop.appearance");
const QString colores = QStringLiteral("color-scheme");
const QString interfazGnome = QStringLiteral("org.gnome.desktop.interface");
const QString animaciones = QStringLiteral("enable-animations");
const QString accesibilidad = QStringLiteral("org.gnome.desktop.a11y.interface");
const QString contraste = QStringLiteral("high-contrast");

constexpr Apariencia::Estado encendido{true, true, true};

/// A portal where everything is switched on.
ServidorSimulado portalEncendido(BusDePrueba &bus)
{
    return {bus,
            portal,
            rutaPortal,
            {QStringLiteral("--template"), QStringLiteral(OVANTA_FIXTURES "/dbusmock/portal_encendido.py")}};
}

/// A portal that knows of colours only and wants light ones.
std::unique_ptr<ServidorSimulado> portalClaro(BusDePrueba &bus)
{
    auto servidor = ServidorSimulado::sencillo(bus, portal, rutaPortal, ajustesPortal);
    servidor->agregarMetodo(ajustesPortal, QStringLiteral("Read"), QStringLiteral("ss"), QStringLiteral("v"),
                            QStringLiteral("if args[1] != 'color-scheme':\n"
                                           "    raise dbus.exceptions.DBusException('no', name='no.no')\n"
                                           "ret = dbus.UInt32(2, variant_level=1)\n"));
    return servidor;
}

std::unique_ptr<ServidorSimulado> crearVigilante(BusDePrueba &bus, bool conAnfitrion)
{
    auto servidor = ServidorSimulado::sencillo(bus, vigilante, rutaVigilante, vigilante);
    servidor->agregarPropiedad(vigilante, hayAnfitrion, conAnfitrion);
    return servidor;
}

} // namespace

TEST(SuspensionLinux, tellsOfEveryWakeAndNotOfFallingAsleep)
{
    BusDePrueba bus;
    ServidorSimulado login{
        bus,
        QStringLiteral("org.freedesktop.login1"),
        QStringLiteral("/org/freedesktop/login1"),
        {QStringLiteral("--system"), QStringLiteral("--template"), QStringLiteral("logind")}};
    SuspensionLinux suspension{bus.conectar()};
    int despertares = 0;
    suspension.alDespertar([&] { ++despertares; });
    const QString senal = QStringLiteral("PrepareForSleep");
    login.emitir(gestorSesiones, senal, QStringLiteral("b"), {true});
    dejarPasar();
    EXPECT_EQ(despertares, 0);
    login.emitir(gestorSesiones, senal, QStringLiteral("b"), {false});
    EXPECT_TRUE(esperarA([&] { return despertares == 1; }));
    login.emitir(gestorSesiones, senal, QStringLiteral("b"), {false});
    EXPECT_TRUE(esperarA([&] { return despertares == 2; }));
}

TEST(SuspensionLinux, withoutASystemBusNothingIsTold)
{
    SuspensionLinux suspension{sinBus()};
    suspension.alDespertar([] { ADD_FAILURE(); });
    dejarPasar();
}

TEST(AparienciaLinux, withoutAPortalEverythingIsPlain)
{
    BusDePrueba bus;
    const AparienciaLinux conBus{bus.conectar()};
    const AparienciaLinux sinNada{sinBus()};
    dejarPasar();
    EXPECT_EQ(conBus.actual(), Apariencia::Estado{});
    EXPECT_EQ(sinNada.actual(), Apariencia::Estado{});
}

TEST(AparienciaLinux, readsValuesThatThePortalWrapsTwice)
{
    BusDePrueba bus;
    ServidorSimulado servidor = portalEncendido(bus);
    const AparienciaLinux aparienciaLinux{bus.conectar()};
    EXPECT_TRUE(esperarA([&] { return aparienciaLinux.actual() == encendido; }));
}

TEST(AparienciaLinux, onlyTheValueOneIsDarkAndUnknownSettingsStayPlain)
{
    BusDePrueba bus;
    auto servidor = portalClaro(bus);
    const AparienciaLinux aparienciaLinux{bus.conectar()};
    ASSERT_TRUE(esperarA([&] { return servidor->llamadas(QStringLiteral("Read")).size() >= 3; }));
    dejarPasar();
    EXPECT_EQ(aparienciaLinux.actual(), Apariencia::Estado{});
}

TEST(AparienciaLinux, followsChangesAsTheyHappen)
{
    BusDePrueba bus;
    auto servidor = portalClaro(bus);
    AparienciaLinux aparienciaLinux{bus.conectar()};
    int cambios = 0;
    aparienciaLinux.alCambiar([&] { ++cambios; });
    // The mock's first answers don't know of the changes: let them come first.
    ASSERT_TRUE(esperarA([&] { return servidor->llamadas(QStringLiteral("Read")).size() >= 3; }));
    dejarPasar();
    const auto cambiar = [&](const QString &espacio, const QString &clave, const QVariant &valor) {
        servidor->emitir(ajustesPortal, QStringLiteral("SettingChanged"), QStringLiteral("ssv"),
                         {espacio, clave, QVariant::fromValue(QDBusVariant(valor))});
    };
    cambiar(apariencia, colores, 1U);
    EXPECT_TRUE(esperarA([&] { return aparienciaLinux.actual().oscuro; }));
    cambiar(interfazGnome, animaciones, false);
    EXPECT_TRUE(esperarA([&] { return aparienciaLinux.actual().movimientoReducido; }));
    cambiar(accesibilidad, contraste, true);
    EXPECT_TRUE(esperarA([&] { return aparienciaLinux.actual().altoContraste; }));
    EXPECT_EQ(cambios, 3);
    cambiar(apariencia, QStringLiteral("accent-color"), 1U);
    cambiar(accesibilidad, contraste, true);
    cambiar(apariencia, colores, 0U);
    EXPECT_TRUE(esperarA([&] { return !aparienciaLinux.actual().oscuro; }));
    EXPECT_EQ(cambios, 4);
}

TEST(AparienciaLinux, aPortalThatAppearsLaterIsRead)
{
    BusDePrueba bus;
    const AparienciaLinux aparienciaLinux{bus.conectar()};
    dejarPasar();
    ServidorSimulado servidor = portalEncendido(bus);
    EXPECT_TRUE(esperarA([&] { return aparienciaLinux.actual() == encendido; }));
    servidor.matar();
    dejarPasar();
    EXPECT_EQ(aparienciaLinux.actual(), encendido)
        << "a portal that is restarted must not make the window flash";
}

TEST(AnfitrionBandejaLinux, thereIsNoneWithoutAWatcher)
{
    BusDePrueba bus;
    const AnfitrionBandejaLinux conBus{bus.conectar()};
    const AnfitrionBandejaLinux sinNada{sinBus()};
    dejarPasar();
    EXPECT_FALSE(conBus.presente());
    EXPECT_FALSE(sinNada.presente());
}

TEST(AnfitrionBandejaLinux, aHostThatIsThereIsFound)
{
    BusDePrueba bus;
    auto servidor = crearVigilante(bus, true);
    const AnfitrionBandejaLinux anfitrion{bus.conectar()};
    EXPECT_TRUE(esperarA([&] { return anfitrion.presente(); }));
}

TEST(AnfitrionBandejaLinux, aHostMayAppearAfterTheWatcherAndGoAgain)
{
    BusDePrueba bus;
    auto servidor = crearVigilante(bus, false);
    AnfitrionBandejaLinux anfitrion{bus.conectar()};
    int cambios = 0;
    anfitrion.alCambiar([&] { ++cambios; });
    dejarPasar();
    EXPECT_FALSE(anfitrion.presente());
    servidor->cambiarPropiedad(vigilante, hayAnfitrion, true);
    servidor->emitir(vigilante, QStringLiteral("StatusNotifierHostRegistered"), {}, {});
    EXPECT_TRUE(esperarA([&] { return anfitrion.presente(); }));
    servidor->cambiarPropiedad(vigilante, hayAnfitrion, false);
    servidor->emitir(vigilante, QStringLiteral("StatusNotifierHostUnregistered"), {}, {});
    EXPECT_TRUE(esperarA([&] { return !anfitrion.presente(); }));
    EXPECT_EQ(cambios, 2);
}

TEST(AnfitrionBandejaLinux, aWatcherThatDiesTakesItsHostsWithIt)
{
    BusDePrueba bus;
    auto servidor = crearVigilante(bus, true);
    const AnfitrionBandejaLinux anfitrion{bus.conectar()};
    ASSERT_TRUE(esperarA([&] { return anfitrion.presente(); }));
    servidor->matar();
    EXPECT_TRUE(esperarA([&] { return !anfitrion.presente(); }));
}
