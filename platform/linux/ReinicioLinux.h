#pragma once

#include "platform/Reinicio.h"

#include <QString>
#include <QVariantList>
#include <chrono>

namespace ovanta {

/// Asks the session manager that is there, by who owns which name on the session's bus: GNOME's, KDE's,
/// Xfce's. Only where none of them is there the system is asked by itself, with leave to ask for a password.
/// Sources: the D-Bus interfaces that gnome-session, plasma-workspace, xfce4-session and systemd-logind
/// publish.
class ReinicioLinux final : public Reinicio
{
public:
    /// Addresses of the buses; empty means that there is none.
    ReinicioLinux(QString sesion, QString sistema,
                  std::chrono::milliseconds limite = std::chrono::seconds{30});

    /// The buses of this process's environment.
    static ReinicioLinux delEntorno();

    void pedir() override;

private:
    QString m_sesion;
    QString m_sistema;
    std::chrono::milliseconds m_limite;
};

} // namespace ovanta
