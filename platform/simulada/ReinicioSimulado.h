#pragma once

#include "platform/Herramientas.h"
#include "platform/Reinicio.h"

namespace ovanta {

/// Asks a Mac's login window to restart by its own script tool, as the entry of the Apple menu does.
class ReinicioSimulado final : public Reinicio
{
public:
    explicit ReinicioSimulado(Herramientas &herramientas) : m_herramientas(herramientas) {}

    void pedir() override;

private:
    Herramientas &m_herramientas;
};

} // namespace ovanta
