#pragma once

#include "platform/linux/CombinarBaterias.h"

#include <string>

namespace ovanta {

/// The batteries and chargers of the machine itself in /sys/class/power_supply; those of devices are
/// left out. Amounts are microampere hours: energies are divided by the battery's nominal voltage.
/// `raiz` is the folder that holds "sys". Blocking, as firmware may be asked; any thread.
LecturaBaterias leerBateriasSys(const std::string &raiz);

} // namespace ovanta
