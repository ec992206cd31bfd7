#pragma once

#include "developer/Simulador.h"

#include <map>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace ovanta {

/// What `simctl` printed is not the list that was asked for; `what()` is the text for the user.
class ErrorDeSimctl : public std::runtime_error
{
public:
    ErrorDeSimctl() : std::runtime_error("No se pudo interpretar la salida de simctl.") {}
};

/// The simulators out of what `simctl list devices -j` printed, as yet without date and size, those of
/// one runtime together. A device whose `udid` or `name` is no text is left out. Throws
/// `ErrorDeSimctl`.
std::vector<Simulador> interpretarSimctl(std::string_view salida);

/// The folder of the simulator `id` below `raiz`. Nothing where the id is no plain file name: it could
/// lead elsewhere.
std::optional<std::string> carpetaDeSimulador(const std::string &raiz, const std::string &id);

/// Bytes by simulator id out of what `du -sk` printed for their folders. Lines that tell no size are
/// left out.
std::map<std::string, std::uint64_t> interpretarTamanos(std::string_view salida);

} // namespace ovanta
