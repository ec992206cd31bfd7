#include "core/MovimientoJson.h"

#include "core/Hexadecimal.h"
#include "core/Utf8.h"
#include "core/Uuid.h"

#include <string>

namespace ovanta {

namespace {

using nlohmann::json;
using nlohmann::ordered_json;

std::string reparado(const std::string &texto)
{
    const auto sustituir = ordered_json::error_handler_t::replace;
    return json::parse(json(texto).dump(-1, ' ', false, sustituir)).get<std::string>();
}

std::optional<std::string> texto(const json &objeto, const char *clave)
{
    const auto hallado = objeto.find(clave);
    if (hallado == objeto.end() || !hallado->is_string()) return std::nullopt;
    return hallado->get<std::string>();
}

std::optional<std::uint64_t> natural(const json &objeto, const char *clave)
{
    const auto hallado = objeto.find(clave);
    if (hallado == objeto.end() || !hallado->is_number_unsigned()) return std::nullopt;
    return hallado->get<std::uint64_t>();
}

std::optional<std::string> ruta(const json &objeto)
{
    auto visible = texto(objeto, "ruta");
    if (!visible || !objeto.contains("rutaBytes")) return visible;
    const auto bytes = texto(objeto, "rutaBytes");
    return bytes ? deHexadecimal(*bytes) : std::nullopt;
}

} // namespace

ordered_json aJson(const Movimiento &movimiento)
{
    const bool legible = esUtf8(movimiento.ruta);
    ordered_json objeto{{"id", movimiento.id},
                        {"ruta", legible ? movimiento.ruta : reparado(movimiento.ruta)},
                        {"bytes", movimiento.bytes},
                        {"fecha", textoISO8601(movimiento.fecha)},
                        {"regla", reparado(movimiento.regla)}};
    if (!legible) objeto["rutaBytes"] = aHexadecimal(movimiento.ruta);
    return objeto;
}

std::optional<Movimiento> movimientoDeJson(const json &objeto)
{
    if (!objeto.is_object()) return std::nullopt;
    const auto id = texto(objeto, "id");
    const auto camino = ruta(objeto);
    const auto bytes = natural(objeto, "bytes");
    const auto momento = texto(objeto, "fecha");
    const auto regla = texto(objeto, "regla");
    if (!id || !esUuid(*id) || !camino || !bytes || !momento || !regla) return std::nullopt;
    const auto fecha = leerISO8601(*momento);
    if (!fecha) return std::nullopt;
    return Movimiento{*id, *camino, *bytes, *fecha, *regla};
}

} // namespace ovanta
