#include "platform/linux/ReinicioLinux.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusReply>
#include <QUuid>

namespace ovanta {

namespace {

using Plazo = std::chrono::steady_clock::time_point;

/// One way to ask.
struct Peticion
{
    const char *presente; ///< the name whose owner shows that this desktop runs
    const char *servicio;
    const char *ruta;
    const char *interfaz;
    const char *metodo;
    QVariantList argumentos;
};

/// The most courteous way of each desktop first.
QList<Peticion> peticionesDeSesion()
{
    // KDE's three numbers: ask first, restart, in the way that is usual.
    const QVariantList preguntarYReiniciar{1, 1, -1};
    return {
        {"org.gnome.SessionManager",
         "org.gnome.SessionManager",
         "/org/gnome/SessionManager",
         "org.gnome.SessionManager",
         "Reboot",
         {}},
        // MATE's manager goes by the same name, and its one dialogue offers both.
        {"org.gnome.SessionManager",
         "org.gnome.SessionManager",
         "/org/gnome/SessionManager",
         "org.gnome.SessionManager",
         "Shutdown",
         {}},
        {"org.kde.LogoutPrompt",
         "org.kde.LogoutPrompt",
         "/LogoutPrompt",
         "org.kde.LogoutPrompt",
         "promptReboot",
         {}},
        {"org.kde.ksmserver",
         "org.kde.LogoutPrompt",
         "/LogoutPrompt",
         "org.kde.LogoutPrompt",
         "promptReboot",
         {}},
        {"org.kde.plasmashell",
         "org.kde.LogoutPrompt",
         "/LogoutPrompt",
         "org.kde.LogoutPrompt",
         "promptReboot",
         {}},
        {"org.kde.ksmserver", "org.kde.ksmserver", "/KSMServer", "org.kde.KSMServerInterface", "logout",
         preguntarYReiniciar},
        {"org.xfce.SessionManager",
         "org.xfce.SessionManager",
         "/org/xfce/SessionManager",
         "org.xfce.Session.Manager",
         "Restart",
         {true}},
    };
}

const Peticion peticionAlSistema{"org.freedesktop.login1",
                                 "org.freedesktop.login1",
                                 "/org/freedesktop/login1",
                                 "org.freedesktop.login1.Manager",
                                 "Reboot",
                                 {true}};

/// A connection of its own, closed at the end: the thread that asks may not share the main thread's.
class Bus
{
public:
    explicit Bus(const QString &direccion)
        : m_nombre(QUuid::createUuid().toString()),
          m_bus(direccion.isEmpty() ? QDBusConnection{m_nombre}
                                    : QDBusConnection::connectToBus(direccion, m_nombre))
    {
    }
    Bus(const Bus &) = delete;
    Bus &operator=(const Bus &) = delete;
    ~Bus()
    {
        m_bus = QDBusConnection{QString{}};
        QDBusConnection::disconnectFromBus(m_nombre);
    }

    bool hay() const { return m_bus.isConnected(); }

    bool tieneDueno(const char *nombre) const
    {
        return m_bus.interface()->isServiceRegistered(QLatin1String(nombre)).value();
    }

    QDBusError pedir(const Peticion &peticion, Plazo plazo) const
    {
        auto mensaje =
            QDBusMessage::createMethodCall(QLatin1String(peticion.servicio), QLatin1String(peticion.ruta),
                                           QLatin1String(peticion.interfaz), QLatin1String(peticion.metodo));
        mensaje.setArguments(peticion.argumentos);
        mensaje.setInteractiveAuthorizationAllowed(true);
        const auto resto =
            std::chrono::duration_cast<std::chrono::milliseconds>(plazo - std::chrono::steady_clock::now());
        if (resto.count() <= 0) return QDBusError{QDBusError::NoReply, {}};
        return QDBusError{m_bus.call(mensaje, QDBus::Block, static_cast<int>(resto.count()))};
    }

private:
    QString m_nombre;
    QDBusConnection m_bus;
};

/// Whether nobody can have heard: only then is another one asked. A user who said no must not be overruled.
bool nadieLoOyo(const QDBusError &error)
{
    switch (error.type()) {
    case QDBusError::UnknownMethod:
    case QDBusError::UnknownInterface:
    case QDBusError::UnknownObject:
    case QDBusError::ServiceUnknown:
        return true;
    default:
        return false;
    }
}

enum class Sesion { noHay, yaPedido, noSabe };

Sesion pedirALaSesion(const Bus &bus, Plazo plazo)
{
    auto resultado = Sesion::noHay;
    for (const Peticion &peticion : peticionesDeSesion()) {
        if (!bus.tieneDueno(peticion.presente)) continue;
        if (!nadieLoOyo(bus.pedir(peticion, plazo))) return Sesion::yaPedido;
        resultado = Sesion::noSabe;
    }
    return resultado;
}

} // namespace

ReinicioLinux::ReinicioLinux(QString sesion, QString sistema, std::chrono::milliseconds limite)
    : m_sesion(std::move(sesion)), m_sistema(std::move(sistema)), m_limite(limite)
{
}

ReinicioLinux ReinicioLinux::delEntorno()
{
    const QString sistema = qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS",
                                                 QStringLiteral("unix:path=/var/run/dbus/system_bus_socket"));
    // Without the variable the bus of a session lies in the folder of its user.
    const QString carpeta = qEnvironmentVariable("XDG_RUNTIME_DIR");
    const QString porCarpeta =
        carpeta.isEmpty() ? QString{} : QStringLiteral("unix:path=%1/bus").arg(carpeta);
    return {qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS", porCarpeta), sistema};
}

void ReinicioLinux::pedir()
{
    const Plazo plazo = std::chrono::steady_clock::now() + m_limite;
    const Bus sesion{m_sesion};
    if (!sesion.hay()) return;
    // The system restarts without a question: where a session manager is there, it would lose work.
    if (pedirALaSesion(sesion, plazo) != Sesion::noHay) return;
    const Bus sistema{m_sistema};
    if (sistema.hay()) sistema.pedir(peticionAlSistema, plazo);
}

} // namespace ovanta
