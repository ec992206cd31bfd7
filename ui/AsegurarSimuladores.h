#pragma once

#include "developer/SimulatorStore.h"

namespace ovanta {

/// What every screen of simulators does when it is first shown: an empty list is loaded, one that is
/// there stays as it is.
inline void asegurarSimuladores(SimulatorStore &sims)
{
    if (sims.simuladores().empty()) sims.cargar();
}

} // namespace ovanta
