#pragma once

#include <string>

namespace ovanta {

/// Where the program's own data lies (catalogues, pictures): "../share/ovanta" as seen from
/// `carpetaPrograma`, the folder of the executable. It is the same in an installation and in a
/// build tree, so a copied or moved tree keeps working. The folder may be missing.
std::string carpetaRecursos(const std::string &carpetaPrograma);

} // namespace ovanta
