#pragma once

#include "platform/Contadores.h"

#include <functional>
#include <optional>
#include <string_view>

namespace ovanta {

/// The first line of /proc/stat. Interrupts count as system time, waiting for disks as idle time;
/// what a hypervisor took is neither. Nothing for a text that does not begin with that line.
std::optional<Contadores::Ticks> interpretarStat(std::string_view texto);

/// Sums the received and sent bytes of /proc/net/dev over the interfaces that `cuenta` accepts. Lines
/// that cannot be understood don't count.
Contadores::Red interpretarNetDev(std::string_view texto,
                                  const std::function<bool(std::string_view interfaz)> &cuenta);

/// Whether the name is one that the system gives to a wired, wireless or mobile network card.
bool nombreDeTarjeta(std::string_view interfaz);

} // namespace ovanta
