#pragma once

#include "core/Fecha.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ovanta {

/// One entry of the history: something that was moved to the Trash, or deleted by an outside tool.
struct Movimiento
{
    std::string id;          ///< UUID in its text form, new for each entry
    std::string ruta;        ///< bytes of the path that was moved, or a title
    std::uint64_t bytes = 0; ///< size measured just before
    Fecha fecha{};           ///< taken when the item had moved
    std::string regla;       ///< a rule's `id`, or the label of the operation

    bool operator==(const Movimiento &) const = default;
};

/// What a batch did. Batches never throw: every failure is a line here, in the order of processing.
struct ResultadoLimpieza
{
    int movidos = 0;
    std::uint64_t bytes = 0;
    std::vector<std::string> errores; ///< texts for the user; paths in them are bytes

    bool operator==(const ResultadoLimpieza &) const = default;
};

} // namespace ovanta
