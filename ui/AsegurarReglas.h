#pragma once

#include "core/RuleStore.h"

namespace ovanta {

/// What every screen of rules does when it is first shown: an empty catalogue is loaded and measured,
/// one that is there stays as it is.
inline void asegurarReglas(RuleStore &reglas)
{
    if (!reglas.reglas().empty()) return;
    reglas.cargar();
    reglas.medir();
}

} // namespace ovanta
