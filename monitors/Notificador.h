#pragma once

#include "platform/Plataforma.h"

#include <string>

namespace ovanta::Notificador {

/// Sends a notice with the ordinary sound. Two with the same `id` within one second are one, the
/// later; otherwise they stand side by side. Where no notices can be shown it does nothing; whether
/// the user allows them is not asked. Main thread.
void enviar(Plataforma &plataforma, const std::string &titulo, const std::string &cuerpo,
            const std::string &id);

} // namespace ovanta::Notificador
