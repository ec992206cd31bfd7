#include "monitors/CierreAplicaciones.h"

namespace ovanta {

namespace {

constexpr const char *sinNombre = "Aplicación";

} // namespace

IdentidadesProcesos identidadesDe(const std::set<std::int32_t> &pids, const IdentidadesProcesos &conocidas)
{
    IdentidadesProcesos pedidas;
    for (const std::int32_t pid : pids)
        if (const auto hallada = conocidas.find(pid); hallada != conocidas.end()) pedidas.insert(*hallada);
    return pedidas;
}

IdentidadesProcesos publicadasHasta(const IdentidadesProcesos &antes,
                                    const std::vector<MuestraProceso> &muestras,
                                    const std::vector<Proceso> &ranking)
{
    IdentidadesProcesos publicadas;
    for (const Proceso &proceso : ranking)
        publicadas[proceso.id] = proceso.inicio;
    for (const MuestraProceso &muestra : muestras) {
        const auto antigua = antes.find(muestra.pid);
        if (antigua != antes.end() && antigua->second == muestra.inicio) publicadas.insert(*antigua);
    }
    return publicadas;
}

std::vector<AplicacionEnMarcha> appsCerrables(const std::vector<AplicacionEnMarcha> &apps,
                                              const IdentidadesProcesos &pedidas,
                                              const std::optional<std::string> &identificadorPropio)
{
    std::vector<AplicacionEnMarcha> cerrables;
    for (const AplicacionEnMarcha &app : apps) {
        const auto pedida = pedidas.find(app.pid);
        if (pedida == pedidas.end() || pedida->second != app.inicio) continue;
        if (app.politica == AplicacionEnMarcha::Politica::prohibida) continue;
        if (esCerrable(app, identificadorPropio)) cerrables.push_back(app);
    }
    return cerrables;
}

std::string nombreAlCerrar(const AplicacionEnMarcha &app)
{
    return app.nombre.value_or(app.identificador.value_or(sinNombre));
}

std::string nombreAlForzar(const AplicacionEnMarcha &app)
{
    return app.nombre.value_or(sinNombre);
}

std::optional<std::string> rutaDeRestos(const AplicacionEnMarcha &app)
{
    const bool delSistema = app.ruta && app.ruta->starts_with("/System/");
    if (delSistema || app.identificador.value_or(std::string{}).starts_with("com.apple."))
        return std::nullopt;
    return app.ruta;
}

} // namespace ovanta
