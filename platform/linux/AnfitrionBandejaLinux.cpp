#include "platform/linux/AnfitrionBandejaLinux.h"

#include "platform/linux/LlamadaDBus.h"

#include <QDBusVariant>

namespace ovanta {

namespace {

// https://www.freedesktop.org/wiki/Specifications/StatusNotifierItem/StatusNotifierWatcher/

const QString nombreVigilante = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString rutaVigilante = QStringLiteral("/StatusNotifierWatcher");

} // namespace

AnfitrionBandejaLinux::AnfitrionBandejaLinux(const QDBusConnection &sesion)
    : m_bus(sesion), m_vigia(sesion, nombreVigilante)
{
    connect(&m_vigia, &VigiaDeServicio::cambiado, this, &AnfitrionBandejaLinux::preguntar);
    for (const QString &senal :
         {QStringLiteral("StatusNotifierHostRegistered"), QStringLiteral("StatusNotifierHostUnregistered")})
        escucharDBus(m_bus, rutaVigilante, nombreVigilante, senal, this, SLOT(preguntar()));
}

void AnfitrionBandejaLinux::preguntar()
{
    // A watcher that only could be started has no host: asking it would start it for nothing.
    if (!m_vigia.presente()) return fijarPresente(false);
    auto mensaje = QDBusMessage::createMethodCall(nombreVigilante, rutaVigilante,
                                                  QStringLiteral("org.freedesktop.DBus.Properties"),
                                                  QStringLiteral("Get"));
    mensaje << nombreVigilante << QStringLiteral("IsStatusNotifierHostRegistered");
    llamarDBus(m_bus, mensaje, this, [this](const QDBusMessage &respuesta) {
        const QVariant valor = respuesta.arguments().value(0).value<QDBusVariant>().variant();
        fijarPresente(m_vigia.presente() && valor.toBool());
    });
}

void AnfitrionBandejaLinux::fijarPresente(bool presente)
{
    if (presente == m_presente) return;
    m_presente = presente;
    m_oyentes.avisar();
}

} // namespace ovanta
