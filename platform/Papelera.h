#pragma once

#include "core/Fecha.h"
#include "core/Identidad.h"
#include "core/Rutas.h"

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

    /// What a path named when it was looked at. Between a caller's check of `ruta` and the measuring
    /// a folder of it may have become a link: who allows only certain places checks `rutaReal` too,
    /// which is where `reciclar` takes the item from.
    struct Medida
    {
        std::string ruta;        ///< absolute, as validated
        std::string carpetaReal; ///< its parent folder, free of links
        Identidad identidad{};   ///< of the item; of a link itself
        Identidad carpeta{};     ///< of `carpetaReal`

        /// The item's own path, free of links but for a final one.
        std::string rutaReal() const { return unir(carpetaReal, ruta.substr(ruta.rfind('/') + 1)); }
    };

    /// Measures what `ruta` names right now, without following a final link. To be done when the
    /// path was validated, and given back to `reciclar`. Returns the reason for the user on failure.
    virtual std::expected<Medida, std::string> medir(const std::string &ruta) = 0;

    /// Moves one item to the user's Trash. Never overwrites, never follows a final link, never
    /// deletes: an item that cannot be moved stays where it is. The move is refused if the item or
    /// the folder above it is not the one that was measured. Returns the reason for
    /// the user on failure, a sentence without capital or full stop, as `textoErrno` gives.
    virtual std::expected<void, std::string> reciclar(const Medida &medida) = 0;

    /// Whether the Trash holds an item that lay at `ruta` and was put there at `desde` or later (by
    /// whole seconds). For finding out, after the program died, whether a move had happened. False
    /// where that cannot be told, as when the folder that held the item is gone.
    virtual bool contiene(const std::string &ruta, Fecha desde) = 0;
};

} // namespace ovanta
