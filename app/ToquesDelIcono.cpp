#include "app/ToquesDelIcono.h"

#include <utility>

namespace ovanta {

namespace {

/// From pressing the button to the message that the host sends when it is released.
constexpr std::chrono::milliseconds unClic{400};

} // namespace

ToquesDelIcono::Accion ToquesDelIcono::pulsar(bool abierto, Fecha ahora)
{
    const std::optional<Fecha> perdido = std::exchange(m_perdido, std::nullopt);
    if (abierto) return Accion::cerrar;
    const bool delMismoClic = perdido && ahora >= *perdido && ahora - *perdido < unClic;
    return delMismoClic ? Accion::nada : Accion::abrir;
}

} // namespace ovanta
