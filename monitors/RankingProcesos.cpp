#include "monitors/RankingProcesos.h"

#include "core/Tamano.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <ranges>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace ovanta {

namespace {

using Politica = AplicacionEnMarcha::Politica;
using AplicacionesPorRuta = std::unordered_map<std::string, const AplicacionEnMarcha *>;

constexpr std::array<std::string_view, 3> protegidas{"com.apple.finder", "com.apple.dock",
                                                     "com.apple.loginwindow"};
constexpr std::string_view deApple = "com.apple.";

/// The processes that make one row, in the order of the sampling.
struct Grupo
{
    std::string ruta; ///< empty for a process that stands alone
    std::vector<const MuestraProceso *> muestras;
};

std::vector<Grupo> agrupar(const std::vector<MuestraProceso> &muestras)
{
    std::vector<Grupo> grupos;
    std::unordered_map<std::string, std::size_t> donde;
    for (const MuestraProceso &muestra : muestras) {
        const std::string clave = muestra.rutaApp.value_or("pid:" + std::to_string(muestra.pid));
        const auto [lugar, nuevo] = donde.emplace(clave, grupos.size());
        if (nuevo) grupos.push_back({muestra.rutaApp.value_or(std::string{}), {}});
        grupos[lugar->second].muestras.push_back(&muestra);
    }
    return grupos;
}

AplicacionesPorRuta porRuta(const std::vector<AplicacionEnMarcha> &apps)
{
    AplicacionesPorRuta mapa;
    for (const AplicacionEnMarcha &app : apps)
        if (app.pid > 0 && app.ruta) mapa.emplace(*app.ruta, &app);
    return mapa;
}

/// The last component of a path, without its extension.
std::string nombreDeRuta(std::string_view ruta)
{
    while (ruta.size() > 1 && ruta.ends_with('/'))
        ruta.remove_suffix(1);
    ruta.remove_prefix(ruta.find_last_of('/') + 1);
    const std::size_t punto = ruta.find_last_of('.');
    const bool conExtension = punto != std::string_view::npos && punto > 0 && punto + 1 < ruta.size();
    return std::string(conExtension ? ruta.substr(0, punto) : ruta);
}

std::string nombreDeGrupo(const Grupo &grupo)
{
    return grupo.muestras.front()->rutaApp ? nombreDeRuta(grupo.ruta) : grupo.muestras.front()->nombre;
}

void sumarMuestras(Proceso &fila, const Grupo &grupo, const FigurasCPU &figuras)
{
    fila.procesos = grupo.muestras.size();
    for (const MuestraProceso *muestra : grupo.muestras) {
        fila.rss = sumarConTope(fila.rss, muestra->huella);
        const auto figura = figuras.find(muestra->pid);
        if (figura != figuras.end()) fila.cpu += figura->second;
    }
}

Proceso filaDe(const Grupo &grupo, const FigurasCPU &figuras, const AplicacionEnMarcha *app,
               const std::optional<std::string> &identificadorPropio)
{
    Proceso fila;
    sumarMuestras(fila, grupo, figuras);
    fila.nombre = app && app->nombre ? *app->nombre : nombreDeGrupo(grupo);
    if (app) {
        fila.id = app->pid;
        fila.inicio = app->inicio;
        fila.icono = app->icono;
        fila.sePuedeCerrar = sePuedeCerrar(*app, identificadorPropio);
        return fila;
    }
    const MuestraProceso &mayor = **std::ranges::max_element(grupo.muestras, {}, &MuestraProceso::huella);
    fila.id = mayor.pid;
    fila.inicio = mayor.inicio;
    return fila;
}

} // namespace

bool esCerrable(const AplicacionEnMarcha &app, const std::optional<std::string> &identificadorPropio)
{
    if (app.identificador == identificadorPropio) return false;
    return std::ranges::find(protegidas, app.identificador.value_or(std::string{})) == protegidas.end();
}

bool sePuedeCerrar(const AplicacionEnMarcha &app, const std::optional<std::string> &identificadorPropio)
{
    const bool ajena = app.identificador && !app.identificador->starts_with(deApple);
    const bool visible = app.politica == Politica::regular || (app.politica == Politica::accesoria && ajena);
    return visible && esCerrable(app, identificadorPropio);
}

std::vector<Proceso> rankingProcesos(const std::vector<MuestraProceso> &muestras, const FigurasCPU &figuras,
                                     const std::vector<AplicacionEnMarcha> &apps,
                                     const std::optional<std::string> &identificadorPropio)
{
    const AplicacionesPorRuta abiertas = porRuta(apps);
    // Equal keys stay in the order of the sampling.
    std::multimap<std::uint64_t, Proceso, std::greater<>> porMemoria;
    for (const Grupo &grupo : agrupar(muestras)) {
        const auto app = abiertas.find(grupo.ruta);
        const bool hayApp = grupo.muestras.front()->rutaApp && app != abiertas.end();
        Proceso fila = filaDe(grupo, figuras, hayApp ? app->second : nullptr, identificadorPropio);
        porMemoria.emplace(fila.rss, std::move(fila));
    }
    std::vector<Proceso> filas;
    for (auto &[rss, fila] : porMemoria | std::views::take(filasDelRanking))
        filas.push_back(std::move(fila));
    return filas;
}

} // namespace ovanta
