#include "platform/linux/NotificacionesLinux.h"

#include "core/qt/Texto.h"
#include "platform/linux/LlamadaDBus.h"

#include <QStringList>
#include <QVariantMap>

namespace ovanta {

namespace {

// https://specifications.freedesktop.org/notification-spec/1.2/

const QString nombreServicio = QStringLiteral("org.freedesktop.Notifications");
const QString rutaServicio = QStringLiteral("/org/freedesktop/Notifications");
const QString idEscritorio = QStringLiteral("com.belmora.Ovanta");

QDBusMessage llamada(const QString &metodo)
{
    return QDBusMessage::createMethodCall(nombreServicio, rutaServicio, nombreServicio, metodo);
}

QVariantMap pistas(Notificaciones::Sonido sonido)
{
    const bool critico = sonido == Notificaciones::Sonido::critico;
    return {{QStringLiteral("urgency"), QVariant::fromValue<uchar>(critico ? 2 : 1)},
            {QStringLiteral("sound-name"),
             critico ? QStringLiteral("dialog-warning") : QStringLiteral("message-new-instant")},
            {QStringLiteral("desktop-entry"), idEscritorio}};
}

} // namespace

NotificacionesLinux::NotificacionesLinux(const QDBusConnection &sesion)
    : m_bus(sesion), m_vigia(sesion, nombreServicio)
{
    connect(&m_vigia, &VigiaDeServicio::cambiado, this, &NotificacionesLinux::alCambiarDueno);
    escucharDBus(m_bus, rutaServicio, nombreServicio, QStringLiteral("NotificationClosed"), this,
                 SLOT(alCerrarse(uint, uint, QDBusMessage)));
}

void NotificacionesLinux::alCambiarDueno()
{
    if (m_vigia.dueno() != m_servidor) {
        // What was sent while nobody owned the name is for the server that the bus starts for it.
        if (!m_servidor.isEmpty()) m_mostrados.clear();
        m_servidor = m_vigia.dueno();
        if (m_vigia.presente()) preguntarCapacidades();
    }
    if (m_vigia.alcanzable() == m_disponible) return;
    m_disponible = m_vigia.alcanzable();
    m_oyentes.avisar();
}

void NotificacionesLinux::preguntarCapacidades()
{
    llamarDBus(
        m_bus, llamada(QStringLiteral("GetCapabilities")), this, [this](const QDBusMessage &respuesta) {
            if (respuesta.type() != QDBusMessage::ReplyMessage) return;
            m_marcado = respuesta.arguments().value(0).toStringList().contains(QStringLiteral("body-markup"));
        });
}

void NotificacionesLinux::pedirPermiso(std::function<void(std::expected<bool, std::string>)> respuesta)
{
    auto responder = [respuesta = std::move(respuesta)] { respuesta(true); };
    QMetaObject::invokeMethod(this, responder, Qt::QueuedConnection);
}

void NotificacionesLinux::enviar(const Aviso &aviso)
{
    if (!m_disponible) return;
    Mostrado &mostrado = m_mostrados[aviso.id];
    // It can replace the earlier one only once the server has told that one's number.
    if (mostrado.enCamino)
        mostrado.siguiente = aviso;
    else
        mandar(aviso, mostrado);
}

void NotificacionesLinux::mandar(const Aviso &aviso, Mostrado &mostrado)
{
    mostrado.enCamino = true;
    const QString cuerpo = mostrar(aviso.cuerpo);
    QDBusMessage mensaje = llamada(QStringLiteral("Notify"));
    mensaje << QStringLiteral("Ovanta") << mostrado.id << idEscritorio << mostrar(aviso.titulo)
            << (m_marcado ? cuerpo.toHtmlEscaped() : cuerpo) << QStringList{} << pistas(aviso.sonido) << -1;
    llamarDBus(m_bus, mensaje, this,
               [this, clave = aviso.id](const QDBusMessage &respuesta) { recibirNumero(clave, respuesta); });
}

void NotificacionesLinux::recibirNumero(const std::string &clave, const QDBusMessage &respuesta)
{
    const bool fallo = respuesta.type() != QDBusMessage::ReplyMessage;
    if (fallo && !m_vigia.presente()) m_vigia.activacionFallida();
    const auto hallado = m_mostrados.find(clave);
    if (hallado == m_mostrados.end()) return;
    Mostrado &mostrado = hallado->second;
    mostrado.enCamino = false;
    mostrado.id = fallo ? 0 : respuesta.arguments().value(0).toUInt();
    if (mostrado.siguiente && m_disponible) {
        const Aviso siguiente = *std::exchange(mostrado.siguiente, std::nullopt);
        mandar(siguiente, mostrado);
    } else if (mostrado.id == 0) {
        m_mostrados.erase(hallado);
    }
}

void NotificacionesLinux::alCerrarse(uint id, uint, const QDBusMessage &mensaje)
{
    if (mensaje.service() != m_servidor) return;
    std::erase_if(m_mostrados, [id](const auto &par) { return par.second.id == id && !par.second.enCamino; });
}

} // namespace ovanta
