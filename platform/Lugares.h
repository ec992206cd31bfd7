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
    /// The catalogue of rules for this platform; the file may be missing.
    std::string catalogo;
    /// Folder with the program's own pictures.
    std::string recursos;
};

} // namespace ovanta
