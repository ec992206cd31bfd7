#pragma once

#include "core/Fecha.h"
#include "core/Identidad.h"

#include <cstdint>
#include <expected>
#include <optional>
#include <string>

namespace ovanta {

/// The user's Trash. Blocking; any thread; many calls may run at once.
class Papelera
{
public:
    virtual ~Papelera() = default;

    /// What `ruta` names right now, without following a final link, and the way there with all
    /// links resolved. To be taken when the path was validated and given back to `reciclar`.
    /// Returns a text for the user on failure.
    struct Medida
    {
        std::string ruta;       ///< absolute, as validated
        std::string carpetaReal; ///< its parent folder, free of links
        Identidad identidad;
    };
    virtual std::expected<Medida, std::string> medir(const std::string &ruta) = 0;

    /// Moves one item to the user's Trash. Never overwrites, never follows a final link, never
    /// deletes: an item that cannot be moved stays where it is. The move is refused if the item or
    /// the folder above it is not the one that was measured. Returns a text for the user on failure.
    virtual std::expected<void, std::string> reciclar(const Medida &medida) = 0;

    /// Whether the Trash holds an item that lay at `ruta` and was put there at `desde` or later (by
    /// whole seconds). For finding out, after the program died, whether a move had happened.
    virtual bool contiene(const std::string &ruta, Fecha desde) = 0;
};

} // namespace ovanta
