#pragma once

#include "platform/Oyentes.h"
#include "platform/Suspension.h"

#include <QDBusConnection>
#include <QObject>

namespace ovanta {

/// The login manager's PrepareForSleep on the system bus. Without one nothing is ever told.
class SuspensionLinux final : public QObject, public Suspension
{
    Q_OBJECT

public:
    explicit SuspensionLinux(QDBusConnection sistema);

    void alDespertar(std::function<void()> accion) override { m_oyentes.agregar(std::move(accion)); }

private Q_SLOTS:
    void prepararSuspension(bool empieza);

private:
    Oyentes m_oyentes;
};

} // namespace ovanta
