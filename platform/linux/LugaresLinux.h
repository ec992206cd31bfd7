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
    std::optional<std::string> xdgRuntime = {}; ///< $XDG_RUNTIME_DIR
    std::optional<std::string> xdgDatos = {};   ///< $XDG_DATA_HOME

    static EntornoLugares delProceso();
};

/// Home is $HOME, or what the password database says where that is unset or not absolute. A home that
/// does not exist is taken as its text. Blocking.
Lugares lugaresLinux(const EntornoLugares &entorno);

/// Where programs keep their settings: XDG_CONFIG_HOME where it is absolute, else in `hogar`.
std::string carpetaDeConfiguracion(const EntornoLugares &entorno, const std::string &hogar);

/// Where programs keep what is not settings, the Trash too: XDG_DATA_HOME where it is absolute, else in
/// `hogar`.
std::string carpetaDeDatosXdg(const EntornoLugares &entorno, const std::string &hogar);

/// Where programs of this session meet: XDG_RUNTIME_DIR where it is absolute, else in `hogar`.
std::string carpetaDeSesion(const EntornoLugares &entorno, const std::string &hogar);

} // namespace ovanta
