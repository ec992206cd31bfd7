#include "core/Recursos.h"

#include <filesystem>

namespace ovanta {

std::string carpetaRecursos(const std::string &carpetaPrograma)
{
    return (std::filesystem::path(carpetaPrograma) / "../share/ovanta").lexically_normal().native();
}

} // namespace ovanta
