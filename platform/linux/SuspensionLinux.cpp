#include "platform/linux/SuspensionLinux.h"

#include "platform/linux/LlamadaDBus.h"

namespace ovanta {

SuspensionLinux::SuspensionLinux(QDBusConnection sistema)
{
    escucharDBus(sistema, QStringLiteral("/org/freedesktop/login1"),
                 QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("PrepareForSleep"), this,
                 SLOT(prepararSuspension(bool)));
}

void SuspensionLinux::prepararSuspension(bool empieza)
{
    if (empieza) return;
    m_oyentes.avisar();
}

} // namespace ovanta
