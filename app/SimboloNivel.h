#pragma once

#include "monitors/NivelDisco.h"

#include <QIcon>

namespace ovanta {

/// The tray's square picture of a level: a drive, a warning triangle or an octagon. `claro` draws
/// it for a dark panel. Sharp at every size that hosts ask for.
QIcon simboloDeNivel(NivelDisco nivel, bool claro);

} // namespace ovanta
