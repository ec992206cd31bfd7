#include "analysis/BuscarCarpetas.h"

#include "core/InterpretarDu.h"
#include "core/OrdenEstable.h"
#include "core/Rutas.h"
#include "core/Uuid.h"

#include <algorithm>
#include <array>
#include <exception>
#include <functional>
#include <map>
#include <optional>
#include <string_view>

namespace ovanta {

namespace {

constexpr double limiteDeHerramienta = 240;
constexpr std::size_t porLlamada = 200;
constexpr std::array<std::string_view, 6> nombres{"node_modules", ".venv", "venv",
                                                  "target",       ".next", "build"};

/// Path to the folder's own name.
using Tipos = std::map<std::string, std::string, std::less<>>;

std::vector<std::string> argumentosDeFind(const std::string &hogar)
{
    std::vector<std::string> argumentos{hogar,   "-maxdepth", "6",
                                        "(",     "-path",     hogar + "/Library",
                                        "-o",    "-path",     hogar + "/.Trash",
                                        ")",     "-prune",    "-o",
                                        "-type", "d",         "("};
    for (const std::string_view nombre : nombres) {
        if (nombre != nombres.front()) argumentos.emplace_back("-o");
        argumentos.emplace_back("-name");
        argumentos.emplace_back(nombre);
    }
    argumentos.insert(argumentos.end(), {")", "-prune", "-print"});
    return argumentos;
}

/// What the tool printed; nothing where it could not be run or took too long.
std::optional<std::string> salida(Herramientas &herramientas, const std::string &binario,
                                  const std::vector<std::string> &argumentos)
{
    try {
        return herramientas.ejecutar(binario, argumentos, limiteDeHerramienta, true);
    } catch (const std::exception &) {
        return std::nullopt;
    }
}

template <typename Accion>
void porLinea(std::string_view texto, Accion accion)
{
    while (!texto.empty()) {
        const std::string_view linea = texto.substr(0, texto.find('\n'));
        texto.remove_prefix(std::min(texto.size(), linea.size() + 1));
        if (!linea.empty()) accion(linea);
    }
}

/// Whether a line of the search is one of its folders. A name with a line break in it gives pieces that
/// are not, and that could name anything.
bool esDeLaBusqueda(std::string_view ruta, const std::string &hogar)
{
    return ruta.starts_with(hogar.ends_with('/') ? hogar : hogar + "/") &&
           std::ranges::find(nombres, ultimoComponente(ruta)) != nombres.end();
}

/// What was thrown away is not to be found again.
bool estaTirada(std::string_view ruta, const Lugares &lugares)
{
    if (ruta.contains("/.Trash/")) return true;
    if (!lugares.papeleraDeVolumen.empty() && ruta.contains("/" + lugares.papeleraDeVolumen + "/"))
        return true;
    return std::ranges::any_of(lugares.papeleras,
                               [&](const std::string &papelera) { return yaceEn(ruta, papelera); });
}

Tipos tiposHallados(std::string_view salidaDeFind, const Lugares &lugares)
{
    Tipos tipos;
    porLinea(salidaDeFind, [&](std::string_view ruta) {
        if (!esDeLaBusqueda(ruta, lugares.hogar) || ruta.contains("/Library/") || estaTirada(ruta, lugares))
            return;
        tipos.emplace(ruta, ultimoComponente(ruta));
    });
    return tipos;
}

void agregarMedidas(std::string_view salidaDeDu, const Tipos &tipos, std::vector<CarpetaPesada> &carpetas)
{
    porLinea(salidaDeDu, [&](std::string_view linea) {
        const auto tabulador = linea.find('\t');
        if (tabulador == std::string_view::npos) return;
        const auto bytes = interpretarDu(linea);
        const auto tipo = tipos.find(linea.substr(tabulador + 1));
        if (bytes && tipo != tipos.end())
            carpetas.push_back({uuidNuevo(), tipo->first, *bytes, tipo->second});
    });
}

} // namespace

std::vector<CarpetaPesada> buscarCarpetas(Herramientas &herramientas, const Lugares &lugares,
                                          const BanderaCancelacion *cancelacion)
{
    if (cancelada(cancelacion)) return {};
    const auto halladas = salida(herramientas, "/usr/bin/find", argumentosDeFind(lugares.hogar));
    if (!halladas) return {};
    const Tipos tipos = tiposHallados(*halladas, lugares);
    std::vector<CarpetaPesada> carpetas;
    for (auto siguiente = tipos.begin(); siguiente != tipos.end();) {
        if (cancelada(cancelacion)) return {};
        std::vector<std::string> argumentos{"-sk"};
        for (; siguiente != tipos.end() && argumentos.size() <= porLlamada; ++siguiente)
            argumentos.push_back(siguiente->first);
        if (const auto medidas = salida(herramientas, "/usr/bin/du", argumentos))
            agregarMedidas(*medidas, tipos, carpetas);
    }
    ordenarEstable(carpetas, std::greater{}, &CarpetaPesada::bytes);
    return carpetas;
}

} // namespace ovanta
