#include "core/Previsualizar.h"

#include <filesystem>
#include <system_error>

namespace ovanta {

namespace {

namespace fs = std::filesystem;

bool puedeMoverse(const Seguridad &seguridad, const std::string &ruta)
{
    try {
        seguridad.validar(ruta);
        return true;
    } catch (const std::exception &) {
        return false;
    }
}

/// The direct entries of a folder; none where the listing fails.
std::vector<std::string> entradas(const std::string &carpeta)
{
    std::vector<std::string> rutas;
    std::error_code fallo;
    for (fs::directory_iterator i(carpeta, fallo), fin; !fallo && i != fin; i.increment(fallo))
        rutas.push_back(carpeta + "/" + i->path().filename().native());
    if (fallo) rutas.clear();
    return rutas;
}

std::vector<std::string> contenido(const Seguridad &seguridad, const std::string &carpeta)
{
    auto rutas = entradas(carpeta);
    std::erase_if(rutas, [&seguridad](const auto &ruta) { return !puedeMoverse(seguridad, ruta); });
    return rutas;
}

} // namespace

Previsualizacion previsualizar(const Seguridad &seguridad, const Regla &regla)
{
    if (regla.risk == "manual") return {{}, "Marcada como manual: no se borra desde aquí."};
    std::string ruta;
    try {
        ruta = seguridad.validar(regla.path);
    } catch (const std::exception &rechazo) {
        return {{}, rechazo.what()};
    }
    std::error_code fallo;
    const auto estado = fs::status(ruta, fallo);
    if (!fs::exists(estado)) return {};
    if (regla.mode == "self" || !fs::is_directory(estado)) return {{ruta}, {}};
    return {contenido(seguridad, ruta), {}};
}

} // namespace ovanta
