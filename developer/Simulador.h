#pragma once

#include "core/Fecha.h"

#include <cstdint>
#include <optional>
#include <string>

namespace ovanta {

/// An iOS simulator of Xcode: a device on disk that holds its apps and their data.
struct Simulador
{
    std::string id; ///< its `udid`
    std::string nombre;
    std::string runtime; ///< readable, for example "iOS 17 5"
    std::string estado = "Desconocido";
    bool disponible = false;
    std::optional<Fecha> creado;        ///< when its folder was made
    std::optional<std::uint64_t> bytes; ///< nothing until it is measured

    /// Xcode has it running: it is never removed.
    bool arrancado() const { return estado == "Booted"; }

    bool operator==(const Simulador &) const = default;
};

} // namespace ovanta
