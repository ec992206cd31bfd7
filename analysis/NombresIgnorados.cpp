#include "analysis/NombresIgnorados.h"

#include "analysis/Minusculas.h"
#include "core/Rutas.h"

#include <algorithm>

namespace ovanta {

const NombresIgnorados &NombresIgnorados::deAnalisis()
{
    static const NombresIgnorados lista{
        {"Library", "node_modules", ".git", ".Trash", "Applications", ".venv", "venv", "__pycache__",
         ".build", "DerivedData", ".npm", ".cache", ".ollama", "Pods", ".gradle", ".cargo"},
        {"app", "photoslibrary", "fcpbundle", "imovielibrary", "framework", "bundle", "xcodeproj",
         "xcworkspace", "logicx", "band", "sparsebundle"}};
    return lista;
}

bool NombresIgnorados::ignoraNombre(std::string_view nombre) const
{
    return std::ranges::find(nombres, nombre) != nombres.end();
}

bool NombresIgnorados::esPaquete(std::string_view nombreDeCarpeta) const
{
    const std::string_view suya = extension(nombreDeCarpeta);
    if (suya.empty()) return false;
    return std::ranges::find(extensiones, minusculas(suya)) != extensiones.end();
}

} // namespace ovanta
