#pragma once

#include "platform/MemoriaSistema.h"
#include "platform/linux/LineasMemoria.h"

namespace ovanta {

/// What the pressure on the memory is told by.
struct MedidaDePresion
{
    std::optional<PresionPSI> psi; ///< absent where the kernel does not measure it
    std::uint64_t disponible = 0;  ///< bytes that programs could still get without swapping
    std::uint64_t total = 0;       ///< 0 where that is not known: `disponible` then tells nothing
};

/// The level that follows `anterior`. Tight when some tasks wait for memory a tenth of the time or less
/// than 10 % is available; critical when all wait a tenth of the time or less than 5 % is. A level once
/// reached is left only at half that waiting and with a fifth more memory, so that it does not flutter.
MemoriaSistema::Nivel nivelDePresion(MemoriaSistema::Nivel anterior, const MedidaDePresion &medida);

} // namespace ovanta
