#pragma once

#include "platform/linux/CombinarBaterias.h"

#include <QDBusConnection>
#include <functional>

namespace ovanta {

/// Asks UPower for the batteries that supply the machine and hands them to `listo` on the main
/// thread; nothing where UPower does not run (it is not started for this), fails or dies meanwhile.
/// Never waits. Amounts are watt hours. After the end of `contexto` nothing is handed over.
void leerBateriasUPower(const QDBusConnection &sistema, QObject *contexto,
                        std::function<void(std::optional<LecturaBaterias>)> listo);

} // namespace ovanta
