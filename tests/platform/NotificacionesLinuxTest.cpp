#include "platform/linux/NotificacionesLinux.h"

#include "tests/platform/BusDePrueba.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusReply>
#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

const QString notify = QStringLiteral("Notify");
const QString interfaz = QStringLiteral("org.freedesktop.Notifications");

/// The arguments of one call of Notify, by their names in the protocol.
struct Recibida
{
    QString programa, icono, titulo, cuerpo;
    uint reemplaza;
    QVariantMap pistas;

    explicit Recibida(const QVariantList &args)
        : programa(args[0].toString()), icono(args[2].toString()), titulo(args[3].toString()),
          cuerpo(args[4].toString()), reemplaza(args[1].toUInt()),
          pistas(qdbus_cast<QVariantMap>(args[6].value<QDBusArgument>()))
    {
    }
};

class NotificacionesLinuxTest : public testing::Test
{
protected:
    BusDePrueba bus;

    /// The calls once there are `cuantas`; by then nothing more should come.
    std::vector<Recibida> recibidas(ServidorSimulado &servidor, int cuantas)
    {
        QList<QVariantList> llamadas;
        EXPECT_TRUE(esperarA([&] { return (llamadas = servidor.llamadas(notify)).size() >= cuantas; }));
        dejarPasar();
        llamadas = servidor.llamadas(notify);
        EXPECT_EQ(llamadas.size(), cuantas);
        return {llamadas.begin(), llamadas.end()};
    }

    static bool espera(const NotificacionesLinux &notificaciones, bool disponible)
    {
        return esperarA([&] { return notificaciones.disponible() == disponible; });
    }
};

Notificaciones::Aviso aviso(std::string id, std::string cuerpo = "Un cuerpo",
                            Notificaciones::Sonido sonido = Notificaciones::Sonido::normal)
{
    return {std::move(id), "Un título", std::move(cuerpo), sonido};
}

} // namespace

TEST(NotificacionesLinuxSinBus, nothingIsAvailableAndNothingHappens)
{
    NotificacionesLinux notificaciones{QDBusConnection{QStringLiteral("no hay tal bus")}};
    dejarPasar();
    EXPECT_FALSE(notificaciones.disponible());
    notificaciones.enviar(aviso("a"));
    dejarPasar();
}

TEST_F(NotificacionesLinuxTest, aBusWithoutAServerHasNone)
{
    const NotificacionesLinux notificaciones{bus.conectar()};
    dejarPasar();
    EXPECT_FALSE(notificaciones.disponible());
}

TEST_F(NotificacionesLinuxTest, aServerThatComesAndGoesIsSeen)
{
    NotificacionesLinux notificaciones{bus.conectar()};
    int cambios = 0;
    notificaciones.alCambiar([&] { ++cambios; });
    auto servidor = ServidorSimulado::notificaciones(bus);
    ASSERT_TRUE(espera(notificaciones, true));
    EXPECT_EQ(cambios, 1);
    servidor->matar();
    ASSERT_TRUE(espera(notificaciones, false));
    EXPECT_EQ(cambios, 2);
}

TEST_F(NotificacionesLinuxTest, permissionIsGrantedAfterTheQuestionNotWithin)
{
    NotificacionesLinux notificaciones{bus.conectar()};
    std::optional<std::expected<bool, std::string>> respuesta;
    notificaciones.pedirPermiso([&](auto r) { respuesta = r; });
    EXPECT_FALSE(respuesta);
    ASSERT_TRUE(esperarA([&] { return respuesta.has_value(); }));
    EXPECT_EQ(*respuesta, true);
}

TEST_F(NotificacionesLinuxTest, aNoticeCarriesNameTextUrgencyAndSound)
{
    auto servidor = ServidorSimulado::notificaciones(bus);
    NotificacionesLinux notificaciones{bus.conectar()};
    ASSERT_TRUE(espera(notificaciones, true));
    notificaciones.enviar(aviso("normal"));
    notificaciones.enviar(aviso("critico", "Otro", Notificaciones::Sonido::critico));
    const auto llegadas = recibidas(*servidor, 2);
    ASSERT_EQ(llegadas.size(), 2);
    EXPECT_EQ(llegadas[0].programa, QStringLiteral("Ovanta"));
    EXPECT_EQ(llegadas[0].titulo, QStringLiteral("Un título"));
    EXPECT_EQ(llegadas[0].cuerpo, QStringLiteral("Un cuerpo"));
    EXPECT_EQ(llegadas[0].reemplaza, 0);
    EXPECT_EQ(llegadas[0].pistas[QStringLiteral("urgency")].toInt(), 1);
    EXPECT_EQ(llegadas[0].pistas[QStringLiteral("sound-name")].toString(),
              QStringLiteral("message-new-instant"));
    EXPECT_EQ(llegadas[0].pistas[QStringLiteral("desktop-entry")].toString(),
              QStringLiteral("com.belmora.Ovanta"));
    EXPECT_EQ(llegadas[1].pistas[QStringLiteral("urgency")].toInt(), 2);
    EXPECT_EQ(llegadas[1].pistas[QStringLiteral("sound-name")].toString(), QStringLiteral("dialog-warning"));
}

TEST_F(NotificacionesLinuxTest, aBodyIsEscapedOnlyForAServerThatReadsMarkup)
{
    for (const auto &[capacidades, esperado] :
         {std::pair{"body body-markup", "&lt;b&gt; &amp; más"}, std::pair{"body", "<b> & más"}}) {
        auto servidor = ServidorSimulado::notificaciones(
            bus, QStringLiteral(R"({"capabilities": "%1"})").arg(QLatin1String(capacidades)));
        NotificacionesLinux notificaciones{bus.conectar()};
        ASSERT_TRUE(espera(notificaciones, true));
        ASSERT_TRUE(
            esperarA([&] { return !servidor->llamadas(QStringLiteral("GetCapabilities")).isEmpty(); }));
        dejarPasar();
        notificaciones.enviar(aviso("a", "<b> & más"));
        const auto llegadas = recibidas(*servidor, 1);
        ASSERT_EQ(llegadas.size(), 1);
        EXPECT_EQ(llegadas[0].cuerpo, QString::fromUtf8(esperado));
    }
}

TEST_F(NotificacionesLinuxTest, theSameIdReplacesAndAnotherDoesNot)
{
    auto servidor = ServidorSimulado::notificaciones(bus);
    NotificacionesLinux notificaciones{bus.conectar()};
    ASSERT_TRUE(espera(notificaciones, true));
    notificaciones.enviar(aviso("a"));
    recibidas(*servidor, 1);
    notificaciones.enviar(aviso("b"));
    notificaciones.enviar(aviso("a"));
    const auto llegadas = recibidas(*servidor, 3);
    ASSERT_EQ(llegadas.size(), 3);
    EXPECT_EQ(llegadas[1].reemplaza, 0);
    EXPECT_EQ(llegadas[2].reemplaza, 1);
}

TEST_F(NotificacionesLinuxTest, noticesSentInOneBreathReplaceEachOtherToo)
{
    auto servidor = ServidorSimulado::notificaciones(bus);
    NotificacionesLinux notificaciones{bus.conectar()};
    ASSERT_TRUE(espera(notificaciones, true));
    for (const char *cuerpo : {"primero", "segundo", "tercero"})
        notificaciones.enviar(aviso("a", cuerpo));
    const auto llegadas = recibidas(*servidor, 2);
    ASSERT_EQ(llegadas.size(), 2);
    EXPECT_EQ(llegadas[1].cuerpo, QStringLiteral("tercero"));
    EXPECT_EQ(llegadas[1].reemplaza, 1);
}

TEST_F(NotificacionesLinuxTest, aNoticeThatTheUserClosedIsNotReplaced)
{
    auto servidor = ServidorSimulado::notificaciones(bus);
    NotificacionesLinux notificaciones{bus.conectar()};
    ASSERT_TRUE(espera(notificaciones, true));
    notificaciones.enviar(aviso("a"));
    recibidas(*servidor, 1);
    servidor->emitir(interfaz, QStringLiteral("NotificationClosed"), QStringLiteral("uu"), {1U, 2U});
    dejarPasar();
    notificaciones.enviar(aviso("a"));
    const auto llegadas = recibidas(*servidor, 2);
    ASSERT_EQ(llegadas.size(), 2);
    EXPECT_EQ(llegadas[1].reemplaza, 0);
}

TEST_F(NotificacionesLinuxTest, aServerThatDiesInTheMiddleIsForgottenWithItsNumbers)
{
    auto servidor = ServidorSimulado::notificaciones(bus);
    NotificacionesLinux notificaciones{bus.conectar()};
    ASSERT_TRUE(espera(notificaciones, true));
    notificaciones.enviar(aviso("a"));
    recibidas(*servidor, 1);
    servidor->agregarMetodo(interfaz, notify, QStringLiteral("susssasa{sv}i"), QStringLiteral("u"),
                            QStringLiteral("import time; time.sleep(60)"));
    notificaciones.enviar(aviso("a"));
    dejarPasar();
    servidor->matar();
    ASSERT_TRUE(espera(notificaciones, false));
    notificaciones.enviar(aviso("a"));

    auto otro = ServidorSimulado::notificaciones(bus);
    ASSERT_TRUE(espera(notificaciones, true));
    notificaciones.enviar(aviso("a", "al nuevo"));
    const auto llegadas = recibidas(*otro, 1);
    ASSERT_EQ(llegadas.size(), 1);
    EXPECT_EQ(llegadas[0].cuerpo, QStringLiteral("al nuevo"));
    EXPECT_EQ(llegadas[0].reemplaza, 0);
}

TEST_F(NotificacionesLinuxTest, aServerThatTheBusCanStartCountsAsThere)
{
    bus.hacerActivable(interfaz,
                       QStringLiteral("/usr/bin/python3 -m dbusmock --template notification_daemon"));
    NotificacionesLinux notificaciones{bus.conectar()};
    ASSERT_TRUE(espera(notificaciones, true));
    notificaciones.enviar(aviso("a"));
    const QDBusConnection control = bus.conectar();
    ASSERT_TRUE(esperarA([&] { return control.interface()->isServiceRegistered(interfaz).value(); }));
    EXPECT_TRUE(notificaciones.disponible());
}

TEST_F(NotificacionesLinuxTest, aServerThatTheBusCannotStartAfterAllIsAbsent)
{
    bus.hacerActivable(interfaz, QStringLiteral("/bin/false"));
    NotificacionesLinux notificaciones{bus.conectar()};
    ASSERT_TRUE(espera(notificaciones, true));
    notificaciones.enviar(aviso("a"));
    EXPECT_TRUE(espera(notificaciones, false));
}
