#include "platform/linux/BateriaLinux.h"
#include "tests/platform/ArbolDePrueba.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QMap>
#include <QtTest/QTest>
#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

const QString servicio = QStringLiteral("org.freedesktop.UPower");
const QString rutaUPower = QStringLiteral("/org/freedesktop/UPower");
constexpr uint cargando = 1;
constexpr uint descargando = 2;
constexpr uint llena = 4;

/// UPower with the devices that a test gives it.
class UPowerDePrueba : public QDBusVirtualObject
{
public:
    bool enBateria = true;
    bool mudo = false; ///< takes calls and never answers
    QMap<QString, QVariantMap> aparatos;
    int llamadas = 0;

    /// Listens on a connection of its own on this test's bus.
    UPowerDePrueba()
    {
        m_bus.registerVirtualObject(rutaUPower, this, QDBusConnection::SubPath);
        EXPECT_TRUE(m_bus.registerService(servicio));
    }
    ~UPowerDePrueba() override { morir(); }

    void morir()
    {
        QDBusConnection::disconnectFromBus(nombreConexion);
        m_bus = QDBusConnection(QString()); // the last one that kept it open
    }

    void poner(const QString &nombre, const QVariantMap &propiedades)
    {
        aparatos[rutaUPower + QStringLiteral("/devices/") + nombre] = propiedades;
    }

    QString introspect(const QString &) const override { return {}; }

    bool handleMessage(const QDBusMessage &mensaje, const QDBusConnection &bus) override
    {
        ++llamadas;
        if (mudo) return true;
        if (mensaje.member() == QLatin1String("EnumerateDevices")) {
            QList<QDBusObjectPath> rutas;
            for (auto aparato = aparatos.begin(); aparato != aparatos.end(); ++aparato)
                rutas << QDBusObjectPath(aparato.key());
            return bus.send(mensaje.createReply(QVariant::fromValue(rutas)));
        }
        if (mensaje.member() != QLatin1String("GetAll")) return false;
        if (mensaje.path() == rutaUPower)
            return bus.send(mensaje.createReply(QVariantMap{{QStringLiteral("OnBattery"), enBateria}}));
        return bus.send(mensaje.createReply(aparatos.value(mensaje.path())));
    }

private:
    const QString nombreConexion = QStringLiteral("upower-de-prueba");
    QDBusConnection m_bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, nombreConexion);
};

QVariantMap bateria(uint estado, double porcentaje)
{
    return {{QStringLiteral("Type"), 2U},
            {QStringLiteral("PowerSupply"), true},
            {QStringLiteral("IsPresent"), true},
            {QStringLiteral("State"), estado},
            {QStringLiteral("Percentage"), porcentaje},
            {QStringLiteral("Energy"), porcentaje / 2},
            {QStringLiteral("EnergyFull"), 50.0},
            {QStringLiteral("EnergyFullDesign"), 60.0},
            {QStringLiteral("EnergyRate"), 10.0},
            {QStringLiteral("TimeToEmpty"), estado == descargando ? qlonglong{7'260} : qlonglong{0}},
            {QStringLiteral("ChargeCycles"), 123}};
}

struct BateriaLinuxTest : testing::Test
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    ArbolDePrueba arbol;
    BateriaLinux lectora{bus, arbol.raiz()};

    std::optional<EstadoBateria> leer()
    {
        bool contestada = false;
        std::optional<EstadoBateria> leido;
        lectora.leer([&](const std::optional<EstadoBateria> &estado) {
            contestada = true;
            leido = estado;
        });
        EXPECT_FALSE(contestada) << "it must not wait for an answer";
        EXPECT_TRUE(QTest::qWaitFor([&] { return contestada; }, 20'000));
        return leido;
    }
    void ponerEnSys() const
    {
        arbol.poner("sys/class/power_supply/BAT0/type", "Battery\n");
        arbol.poner("sys/class/power_supply/BAT0/capacity", "33\n");
        arbol.poner("sys/class/power_supply/BAT0/status", "Discharging\n");
    }
};

} // namespace

TEST_F(BateriaLinuxTest, upowerTellsADischargingBattery)
{
    UPowerDePrueba upower;
    upower.poner(QStringLiteral("battery_BAT0"), bateria(descargando, 64.7));
    const EstadoBateria esperado{.porcentaje = 64,
                                 .cargando = false,
                                 .enCorriente = false,
                                 .minutosRestantes = 121,
                                 .ciclos = 123,
                                 .salud = 83};
    EXPECT_EQ(leer(), esperado);
}

TEST_F(BateriaLinuxTest, upowerTellsAChargingBatteryAndAFullOne)
{
    UPowerDePrueba upower;
    upower.enBateria = false;
    upower.poner(QStringLiteral("battery_BAT0"), bateria(cargando, 64));
    EXPECT_TRUE(leer()->cargando);
    EXPECT_TRUE(leer()->enCorriente);
    EXPECT_EQ(leer()->minutosRestantes, std::nullopt);
    upower.poner(QStringLiteral("battery_BAT0"), bateria(llena, 100));
    EXPECT_FALSE(leer()->cargando);
    EXPECT_EQ(leer()->porcentaje, 100);
}

TEST_F(BateriaLinuxTest, upowersTwoBatteriesCountTogether)
{
    UPowerDePrueba upower;
    upower.poner(QStringLiteral("battery_BAT0"), bateria(descargando, 20));
    upower.poner(QStringLiteral("battery_BAT1"), bateria(llena, 100));
    EXPECT_EQ(leer()->porcentaje, 60);
    EXPECT_FALSE(leer()->enCorriente);
}

TEST_F(BateriaLinuxTest, upowersMouseChargerAndEmptyBayAreNoBatteries)
{
    UPowerDePrueba upower;
    QVariantMap raton = bateria(descargando, 10);
    raton[QStringLiteral("Type")] = 5U;
    raton[QStringLiteral("PowerSupply")] = false;
    upower.poner(QStringLiteral("mouse_hidpp"), raton);
    QVariantMap telefono = bateria(descargando, 10);
    telefono[QStringLiteral("PowerSupply")] = false;
    upower.poner(QStringLiteral("battery_phone"), telefono);
    upower.poner(QStringLiteral("line_power_AC"),
                 {{QStringLiteral("Type"), 1U}, {QStringLiteral("PowerSupply"), true}});
    QVariantMap hueco = bateria(descargando, 10);
    hueco[QStringLiteral("IsPresent")] = false;
    upower.poner(QStringLiteral("battery_BAT1"), hueco);
    EXPECT_EQ(leer(), std::nullopt);
}

TEST_F(BateriaLinuxTest, aDesktopWithUPowerHasNone)
{
    const UPowerDePrueba upower;
    ponerEnSys();
    EXPECT_EQ(leer(), std::nullopt) << "UPower is believed where it runs";
}

TEST_F(BateriaLinuxTest, withoutUPowerTheKernelIsAsked)
{
    ponerEnSys();
    EXPECT_EQ(leer()->porcentaje, 33);
}

TEST_F(BateriaLinuxTest, withoutABusTheKernelIsAsked)
{
    ponerEnSys();
    BateriaLinux sinBus{QDBusConnection(QStringLiteral("no hay tal bus")), arbol.raiz()};
    std::optional<EstadoBateria> leido;
    sinBus.leer([&](const std::optional<EstadoBateria> &estado) { leido = estado; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return leido.has_value(); }, 20'000));
}

TEST_F(BateriaLinuxTest, anUPowerThatDiesInTheMiddleOfAReadingIsReplacedByTheKernel)
{
    ponerEnSys();
    UPowerDePrueba upower;
    upower.mudo = true;
    std::optional<EstadoBateria> leido;
    lectora.leer([&](const std::optional<EstadoBateria> &estado) { leido = estado; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return upower.llamadas > 0; }, 20'000));
    EXPECT_EQ(leido, std::nullopt);
    upower.morir();
    ASSERT_TRUE(QTest::qWaitFor([&] { return leido.has_value(); }, 20'000));
    EXPECT_EQ(leido->porcentaje, 33);
    EXPECT_EQ(leer()->porcentaje, 33);
}

TEST_F(BateriaLinuxTest, aReadingAskedForMeanwhileSharesTheAnswer)
{
    UPowerDePrueba upower;
    upower.poner(QStringLiteral("battery_BAT0"), bateria(descargando, 64));
    std::vector<int> leidos;
    for (int i = 0; i < 3; ++i)
        lectora.leer(
            [&](const std::optional<EstadoBateria> &estado) { leidos.push_back(estado->porcentaje); });
    ASSERT_TRUE(QTest::qWaitFor([&] { return leidos.size() == 3; }, 20'000));
    EXPECT_EQ(upower.llamadas, 3) << "the service, its list, one device";
}

TEST_F(BateriaLinuxTest, anAnswerThatComesAfterItsReaderIsDropped)
{
    UPowerDePrueba upower;
    bool contestada = false;
    {
        BateriaLinux breve{bus, arbol.raiz()};
        breve.leer([&](const std::optional<EstadoBateria> &) { contestada = true; });
    }
    QTest::qWait(100);
    EXPECT_FALSE(contestada);
}
