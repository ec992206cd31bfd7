#pragma once

#include "core/Fecha.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ovanta {

/// A file that an analysis shows.
struct ArchivoHallado
{
    std::string id;   ///< a new UUID for each record
    std::string ruta; ///< absolute
    std::uint64_t bytes = 0;
    /// Whole seconds; always there for a file that the walk met.
    std::optional<Fecha> modificado;
    /// Device and inode in decimal with ":" between them; always there for a file that the walk met.
    std::optional<std::string> identidadFisica;
    /// Nanoseconds since 1970 as the file system told them, for seeing later whether it is unchanged.
    std::int64_t modificadoNs = 0;

    bool operator==(const ArchivoHallado &) const = default;
};

/// A heavy folder that its tools can make again.
struct CarpetaPesada
{
    std::string id;   ///< a new UUID for each record
    std::string ruta; ///< absolute
    std::uint64_t bytes = 0;
    std::string tipo; ///< its own name: "node_modules", "target"…

    bool operator==(const CarpetaPesada &) const = default;
};

} // namespace ovanta
