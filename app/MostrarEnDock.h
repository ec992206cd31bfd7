#pragma once

#include "platform/Plataforma.h"

namespace ovanta {

/// The setting `mostrarEnDock`: whether the desktop lists the program among the running applications.
/// True where nothing is stored, or something that is no yes or no.
bool mostrarEnDock(const Preferencias &preferencias);

/// Changes the setting; in effect at once. Main thread.
void fijarMostrarEnDock(Plataforma &plataforma, bool mostrar);

/// Puts the stored setting into effect: at the start, before the first window. Main thread.
void aplicarMostrarEnDock(Plataforma &plataforma);

} // namespace ovanta
