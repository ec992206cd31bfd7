#pragma once

#include "core/Fecha.h"

#include <optional>

namespace ovanta {

/// What a click on the status icon means for the panel. Pressing the icon takes the focus from an open
/// panel, which closes for it before the click arrives: that click must not open it again.
class ToquesDelIcono
{
public:
    enum class Accion { abrir, cerrar, nada };

    /// The panel closed because the user turned to something else.
    void panelPerdioElFoco(Fecha ahora) { m_perdido = ahora; }

    /// The icon was clicked while the panel was open or not.
    Accion pulsar(bool abierto, Fecha ahora);

private:
    std::optional<Fecha> m_perdido;
};

} // namespace ovanta
