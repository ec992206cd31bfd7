#include "platform/linux/VigiaDeServicio.h"

#include "platform/linux/LlamadaDBus.h"

namespace ovanta {

namespace {

QDBusMessage alBus(const QString &metodo)
{
    const QString bus = QStringLiteral("org.freedesktop.DBus");
    return QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"), bus, metodo);
}

} // namespace

VigiaDeServicio::VigiaDeServicio(const QDBusConnection &bus, const QString &nombre)
    : m_nombre(nombre), m_vigia(nombre, bus, QDBusServiceWatcher::WatchForOwnerChange)
{
    connect(&m_vigia, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &nuevo) { fijarDueno(nuevo); });
    preguntar(bus);
}

void VigiaDeServicio::preguntar(QDBusConnection bus)
{
    QDBusMessage deQuien = alBus(QStringLiteral("GetNameOwner"));
    deQuien << m_nombre;
    llamarDBus(bus, deQuien, this, [this](const QDBusMessage &respuesta) {
        // An error means that nobody owns it; a change after that is told by the watcher.
        if (respuesta.type() == QDBusMessage::ReplyMessage)
            fijarDueno(respuesta.arguments().value(0).toString());
    });
    llamarDBus(bus, alBus(QStringLiteral("ListActivatableNames")), this,
               [this](const QDBusMessage &respuesta) {
                   fijarActivable(respuesta.arguments().value(0).toStringList().contains(m_nombre));
               });
}

void VigiaDeServicio::fijarDueno(const QString &dueno)
{
    if (dueno == m_dueno) return;
    m_dueno = dueno;
    Q_EMIT cambiado();
}

void VigiaDeServicio::fijarActivable(bool activable)
{
    if (activable == m_activable) return;
    m_activable = activable;
    Q_EMIT cambiado();
}

void VigiaDeServicio::activacionFallida()
{
    fijarActivable(false);
}

} // namespace ovanta
