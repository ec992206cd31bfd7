#pragma once

#include "platform/simulada/dispositivos/DispositivoSimulado.h"

namespace ovanta {

/// How a client came to the diagnostics relay: lockdown started it, or through a tunnel, where it checks
/// in first and nothing is encrypted.
enum class AccesoAlRele { porLockdown, porTunel };

/// One conversation with the diagnostics relay, until the peer says goodbye or goes.
void conversarConRele(EnchufeSimulado &enchufe, DispositivoSimulado &dispositivo, AccesoAlRele acceso);

} // namespace ovanta
