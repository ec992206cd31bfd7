#pragma once

#include "platform/linux/EntradaEscritorio.h"

#include <string>
#include <string_view>
#include <vector>

namespace ovanta {

/// Desktop ids of the monitors of processes that desktops bring, those of `escritorio` (as in
/// XDG_CURRENT_DESKTOP) first.
std::vector<std::string> monitoresDeActividad(std::string_view escritorio);

/// Starts what an entry is about, without a shell, and leaves it running; whether it started.
bool abrirEntrada(const EntradaEscritorio &entrada);

} // namespace ovanta
