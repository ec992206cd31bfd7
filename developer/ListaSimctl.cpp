#include "developer/ListaSimctl.h"

#include "core/InterpretarDu.h"
#include "core/LeerJson.h"
#include "core/Rutas.h"

#include <algorithm>

namespace ovanta {

namespace {

using nlohmann::json;

std::string runtimeLegible(std::string clave)
{
    constexpr std::string_view prefijo = "com.apple.CoreSimulator.SimRuntime.";
    for (std::size_t i = clave.find(prefijo); i != std::string::npos; i = clave.find(prefijo, i))
        clave.erase(i, prefijo.size());
    std::ranges::replace(clave, '-', ' ');
    return clave;
}

std::optional<std::string> texto(const json &ficha, const char *campo)
{
    const auto hallado = ficha.find(campo);
    if (hallado == ficha.end() || !hallado->is_string()) return std::nullopt;
    return hallado->get<std::string>();
}

std::optional<Simulador> simuladorDe(const json &ficha, const std::string &runtime)
{
    const auto id = texto(ficha, "udid");
    const auto nombre = texto(ficha, "name");
    if (!id || !nombre) return std::nullopt;
    Simulador simulador;
    simulador.id = *id;
    simulador.nombre = *nombre;
    simulador.runtime = runtime;
    simulador.estado = texto(ficha, "state").value_or(simulador.estado);
    const auto disponible = ficha.find("isAvailable");
    simulador.disponible = disponible != ficha.end() && disponible->is_boolean() && disponible->get<bool>();
    return simulador;
}

bool esListaDeFichas(const json &valor)
{
    return valor.is_array() && std::ranges::all_of(valor, [](const json &una) { return una.is_object(); });
}

} // namespace

std::vector<Simulador> interpretarSimctl(std::string_view salida)
{
    const auto documento = leerJson(salida);
    if (!documento || !documento->is_object()) throw ErrorDeSimctl();
    const auto dispositivos = documento->find("devices");
    if (dispositivos == documento->end() || !dispositivos->is_object() ||
        !std::ranges::all_of(*dispositivos, esListaDeFichas))
        throw ErrorDeSimctl();
    std::vector<Simulador> simuladores;
    for (const auto &[clave, fichas] : dispositivos->items()) {
        const std::string runtime = runtimeLegible(clave);
        for (const json &ficha : fichas)
            if (auto simulador = simuladorDe(ficha, runtime)) simuladores.push_back(*std::move(simulador));
    }
    return simuladores;
}

std::optional<std::string> carpetaDeSimulador(const std::string &raiz, const std::string &id)
{
    if (id.empty() || id == "." || id == ".." || id.find('/') != std::string::npos ||
        id.find('\0') != std::string::npos)
        return std::nullopt;
    return unir(raiz, id);
}

std::map<std::string, std::uint64_t> interpretarTamanos(std::string_view salida)
{
    std::map<std::string, std::uint64_t> tamanos;
    while (!salida.empty()) {
        const std::size_t fin = std::min(salida.find('\n'), salida.size());
        const std::string_view linea = salida.substr(0, fin);
        salida.remove_prefix(std::min(fin + 1, salida.size()));
        const std::size_t tabulador = linea.find('\t');
        const auto bytes = interpretarDu(linea);
        if (tabulador == std::string_view::npos || !bytes) continue;
        tamanos[std::string(ultimoComponente(linea.substr(tabulador + 1)))] = *bytes;
    }
    return tamanos;
}

} // namespace ovanta
