#include "platform/linux/InstanciaUnicaLinux.h"

#include <QDBusMessage>

namespace ovanta {

namespace {

const QString nombrePropio = QStringLiteral("com.belmora.Ovanta");
const QString rutaPropia = QStringLiteral("/com/belmora/Ovanta");
const QString interfazAplicacion = QStringLiteral("org.freedesktop.Application");

/// How a desktop hands the right to the focus from one program to another.
constexpr const char *variableDeFoco = "XDG_ACTIVATION_TOKEN";
const QString claveDeFoco = QStringLiteral("activation-token");

/// Asks the bus itself. That is the one question which has to be waited for: without its answer
/// nobody knows whether this process should go on.
QDBusMessage preguntarAlBus(const QDBusConnection &bus, const QString &metodo, const QVariantList &argumentos)
{
    constexpr int esperaMs = 3000;
    const QString daemon = QStringLiteral("org.freedesktop.DBus");
    auto mensaje =
        QDBusMessage::createMethodCall(daemon, QStringLiteral("/org/freedesktop/DBus"), daemon, metodo);
    mensaje.setArguments(argumentos);
    return bus.call(mensaje, QDBus::Block, esperaMs);
}

} // namespace

InstanciaUnicaLinux::InstanciaUnicaLinux(Entorno entorno) : m_entorno(std::move(entorno)) {}

bool InstanciaUnicaLinux::adquirir(std::function<void()> alActivar)
{
    m_alActivar = std::move(alActivar);
    switch (pedirNombre()) {
    case Nombre::obtenido:
        return true;
    case Nombre::ocupado:
        activarLaOtra();
        return false;
    case Nombre::sinBus:
        break;
    }
    m_candado = std::make_unique<CandadoDeInstancia>(m_entorno.carpetaPrivada);
    return m_candado->tomar(m_alActivar);
}

InstanciaUnicaLinux::Nombre InstanciaUnicaLinux::pedirNombre()
{
    if (!m_entorno.sesion.isConnected()) return Nombre::sinBus;
    // The object has to be there before anybody can find it by the name.
    m_entorno.sesion.registerObject(rutaPropia, this, QDBusConnection::ExportScriptableSlots);
    constexpr uint sinCola = 4;     // DBUS_NAME_FLAG_DO_NOT_QUEUE
    constexpr uint primerDueno = 1; // DBUS_REQUEST_NAME_REPLY_PRIMARY_OWNER
    constexpr uint yaEraDueno = 4;  // DBUS_REQUEST_NAME_REPLY_ALREADY_OWNER
    const QDBusMessage respuesta =
        preguntarAlBus(m_entorno.sesion, QStringLiteral("RequestName"), {nombrePropio, sinCola});
    if (respuesta.type() != QDBusMessage::ReplyMessage) return Nombre::sinBus;
    const uint codigo = respuesta.arguments().value(0).toUInt();
    return codigo == primerDueno || codigo == yaEraDueno ? Nombre::obtenido : Nombre::ocupado;
}

void InstanciaUnicaLinux::activarLaOtra()
{
    QVariantMap datos;
    if (const QString foco = qEnvironmentVariable(variableDeFoco); !foco.isEmpty()) datos[claveDeFoco] = foco;
    auto activar = QDBusMessage::createMethodCall(nombrePropio, rutaPropia, interfazAplicacion,
                                                  QStringLiteral("Activate"));
    activar << datos;
    m_entorno.sesion.send(activar);
    // The other copy may hang, so its answer is not waited for. But this process is about to end, and
    // messages keep their order: once the bus has answered this, it has passed the first one on.
    preguntarAlBus(m_entorno.sesion, QStringLiteral("GetId"), {});
}

void InstanciaUnicaLinux::Activate(const QVariantMap &datos)
{
    if (const QByteArray foco = datos.value(claveDeFoco).toString().toUtf8(); !foco.isEmpty())
        qputenv(variableDeFoco, foco);
    if (m_alActivar) m_alActivar();
}

} // namespace ovanta
