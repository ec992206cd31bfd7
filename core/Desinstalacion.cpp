#include "core/Desinstalacion.h"

#include "core/Rutas.h"

#include <algorithm>
#include <exception>
#include <optional>
#include <utility>

namespace ovanta {

namespace {

std::optional<std::string> rastro(const Seguridad &seguridad, const std::string &resto,
                                  const std::string &bundleID)
{
    try {
        return seguridad.validarRastroAplicacion(resto, bundleID);
    } catch (const std::exception &) {
        return std::nullopt;
    }
}

} // namespace

std::expected<std::vector<std::string>, std::string>
planDeDesinstalacion(const Seguridad &seguridad, const EnEjecucion &enEjecucion, const std::string &ruta,
                     const std::string &bundleID, const std::vector<std::string> &restos)
{
    std::vector<std::string> plan;
    try {
        plan.push_back(seguridad.validarAplicacionInstalada(ruta, bundleID));
    } catch (const std::exception &rechazo) {
        return std::unexpected(rechazo.what());
    }
    if (enEjecucion(bundleID))
        return std::unexpected("Cierra la aplicación antes de desinstalarla: " +
                               std::string(ultimoComponente(plan.front())) + ".");
    for (const auto &resto : restos)
        if (auto valido = rastro(seguridad, resto, bundleID);
            valido && std::ranges::find(plan, *valido) == plan.end())
            plan.push_back(std::move(*valido));
    return plan;
}

} // namespace ovanta
