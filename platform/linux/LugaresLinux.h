#pragma once

#include "platform/Lugares.h"

#include <optional>
#include <string>

namespace ovanta {

/// What the places are found out from.
struct EntornoLugares
{
    std::optional<std::string> home;      ///< $HOME
    std::optional<std::string> xdgConfig; ///< $XDG_CONFIG_HOME
    std::string carpetaPrograma;          ///< folder of the running program; ../share/ovanta is its data

    static EntornoLugares delProceso();
};

/// Home is $HOME, or what the password database says where that is unset or not absolute. A home that
/// does not exist is taken as its text. Blocking.
Lugares lugaresLinux(const EntornoLugares &entorno);

} // namespace ovanta
