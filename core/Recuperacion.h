#pragma once

#include "core/Movimiento.h"

#include <functional>
#include <string>
#include <vector>

namespace ovanta {

/// What the batches of earlier runs moved without living to see it in the history.
struct Recuperacion
{
    std::vector<Movimiento> movimientos; ///< the newest batch first, each in its order
    std::vector<std::string> registros;  ///< the files that tell of it, to go once it is in the history
};

/// Whether the Trash holds an item that lay at `ruta` and went there at `desde` or later.
using EnPapelera = std::function<bool(const std::string &ruta, Fecha desde)>;

/// Reads every record in `carpeta`. A move that was under way when its batch died counts as done
/// where the Trash holds the item and its old place does not; something new may lie there by now. Blocking;
/// any thread.
Recuperacion recuperar(const std::string &carpeta, const EnPapelera &enPapelera);

} // namespace ovanta
