#pragma once

#include "core/Identidad.h"
#include "platform/linux/CarpetaPapelera.h"

#include <array>
#include <functional>
#include <string>

namespace ovanta {

/// The steps of a move, each named after what has just been done.
enum class PasoPapelera {
    comprobado,    ///< the item is the measured one and the Trash is open
    infoCreada,    ///< its info file exists, still empty
    infoEscrita,   ///< its info file is complete
    movido,        ///< the item lies in the Trash
    devuelto,      ///< what had moved was not the measured item and is back in its place
    infoRetirada,  ///< the info file of a move that was not to be is gone
    tamanoAparte,  ///< the new list of folder sizes is written beside the old one
    tamanoAnotado, ///< and has replaced it
};

/// Called after every step; must not throw. Empty in the product; tests end the process or change the
/// disk in it.
using AlPaso = std::function<void(PasoPapelera)>;

/// One item to be moved: `nombre` directly in the open folder `carpeta`.
struct ObjetoATrasladar
{
    int carpeta = -1;
    std::string nombre;
    Identidad identidad;
};

/// Moves the item into the Trash with `info` as the text of its info file and returns its name there.
/// The complete info file is there before the item, so that whatever ends the process, nothing
/// lies in the Trash without its origin; at worst an info file without an item stays behind, which
/// the standard tells every program to ignore. Nothing is overwritten. An item that turns
/// out not to be the measured one is put back. Throws `RechazoPapelera` or std::system_error.
///
/// Nothing is synced: a sync for each item would cost more than everything else together. After a
/// power failure the item is in its place or in the Trash, but its info file may be empty.
std::string trasladar(const CarpetaPapelera &papelera, const ObjetoATrasladar &objeto,
                      const std::string &info, const AlPaso &alPaso);

} // namespace ovanta
