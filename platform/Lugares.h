#pragma once

#include <string>
#include <vector>

namespace ovanta {

/// Where things lie on this machine. Fixed for the life of the process; any thread.
struct Lugares
{
    /// The user's home: absolute, links resolved, no trailing slash.
    std::string hogar;
    /// Folders below home, relative to it, that join the protected ones on this platform.
    std::vector<std::string> protegidas;
    /// The folders that an analysis of the files walks, relative to home; they may be missing.
    std::vector<std::string> raices{"Downloads", "Desktop", "Documents", "Pictures", "Movies"};
    /// Those of them that downloads land in.
    std::vector<std::string> descargas{"Downloads"};
    /// Where the user's own Trash keeps what was thrown away: absolute, by every spelling known of it; it
    /// may be missing.
    std::vector<std::string> papeleras;
    /// The name of the user's Trash at the top of any other volume.
    std::string papeleraDeVolumen;
    /// The catalogue of rules for this platform; the file may be missing.
    std::string catalogo;
    /// Folder with the program's own pictures.
    std::string recursos;
};

} // namespace ovanta
