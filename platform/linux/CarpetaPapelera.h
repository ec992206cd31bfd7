#pragma once

#include "core/Descriptor.h"

#include <stdexcept>
#include <string>

namespace ovanta {

/// Why something must not or cannot go to the Trash, in words for the user.
struct RechazoPapelera : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/// One Trash folder, by the freedesktop Trash specification 1.0: open, ours, and free of links.
struct CarpetaPapelera
{
    Descriptor raiz;     ///< the Trash folder itself, O_PATH
    Descriptor archivos; ///< its "files"
    Descriptor infos;    ///< its "info"
    std::string cima;    ///< top folder of its volume, which paths in infos start from; empty: absolute

    /// What an info file says of an item at the real path `ruta`.
    std::string rutaEnInfo(const std::string &ruta) const;
};

/// Where the user's own Trash lies.
struct LugarPapelera
{
    std::string hogar; ///< absolute
    std::string datos; ///< XDG_DATA_HOME; counts only if absolute
};

enum class SiFalta { crear, fallar };

/// The Trash for the item at `rutaReal`, a path without links: the one at home for home's volume,
/// else the one at the top of the item's volume. With `crear` it is made where missing (0700). Throws
/// `RechazoPapelera` for a Trash that another user or a link could be behind, and where the item is
/// the Trash, holds it or lies in it; std::system_error for what the system refuses.
CarpetaPapelera papeleraPara(const LugarPapelera &lugar, const std::string &rutaReal, SiFalta siFalta);

} // namespace ovanta
