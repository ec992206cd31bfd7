#pragma once

#include "monitors/NivelDisco.h"

#include <QIcon>
#include <QPainterPath>
#include <string_view>

namespace ovanta {

/// The system symbol that stands for a level in the bar.
std::string_view nombreDeSimbolo(NivelDisco nivel);

/// Everything of a symbol is drawn on a square of this side.
inline constexpr double ladoDeSimbolo = 24.0;

/// The shape of one of the symbols that `nombreDeSimbolo` names; nothing for any other.
QPainterPath formaDeSimbolo(std::string_view nombre);

/// The tray's square picture of a level: a drive, a warning triangle or an octagon. `claro` draws
/// it for a dark panel. Sharp at every size that hosts ask for.
QIcon simboloDeNivel(NivelDisco nivel, bool claro);

} // namespace ovanta
