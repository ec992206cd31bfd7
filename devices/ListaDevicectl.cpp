#include "devices/ListaDevicectl.h"

#include "core/LeerJson.h"

#include <utility>

namespace ovanta::CoreDevice {

namespace {

using nlohmann::json;

constexpr int profundidadMaxima = 64; // what the tool writes nests some ten deep

/// What an object has under `clave`; null for any other value and for a missing key.
const json *campo(const json *ficha, const char *clave)
{
    if (!ficha || !ficha->is_object()) return nullptr;
    const auto hallado = ficha->find(clave);
    return hallado == ficha->end() ? nullptr : &*hallado;
}

std::optional<std::string> texto(const json *ficha, const char *clave)
{
    const json *valor = campo(ficha, clave);
    return valor && valor->is_string() ? std::optional(valor->get<std::string>()) : std::nullopt;
}

std::optional<Dispositivo> dispositivoDe(const json &ficha)
{
    const json *conexion = campo(&ficha, "connectionProperties");
    const json *aparato = campo(&ficha, "hardwareProperties");
    const json *propio = campo(&ficha, "deviceProperties");
    const auto transporte = texto(conexion, "transportType");
    auto id = texto(&ficha, "identifier");
    auto udid = texto(aparato, "udid");
    if (!transporte || !id || !udid) return std::nullopt;
    return Dispositivo{.id = *std::move(id),
                       .udid = *std::move(udid),
                       .nombre = texto(propio, "name"),
                       .modelo = texto(aparato, "productType"),
                       .marketing = texto(aparato, "marketingName"),
                       .clase = texto(aparato, "deviceType"),
                       .version = texto(propio, "osVersionNumber"),
                       .transporte = *transporte == "localNetwork" ? "Wi-Fi" : "cable"};
}

} // namespace

ErrorIOS sinDatosDeXcode()
{
    return ErrorIOS::protocolo("Xcode no devolvió datos del dispositivo.");
}

std::expected<json, ErrorIOS> resultadoDe(std::string_view archivo)
{
    if (archivo.empty()) return std::unexpected(sinDatosDeXcode());
    auto documento = leerJson(archivo, profundidadMaxima);
    if (!documento) return std::unexpected(ErrorIOS::otro("La respuesta de devicectl no es JSON válido."));
    const json *resultado = campo(&*documento, "result");
    if (!resultado || !resultado->is_object()) return std::unexpected(sinDatosDeXcode());
    return std::move((*documento)["result"]);
}

std::vector<Dispositivo> dispositivosDe(const json &resultado)
{
    std::vector<Dispositivo> dispositivos;
    const json *lista = campo(&resultado, "devices");
    if (!lista || !lista->is_array()) return dispositivos;
    for (const json &ficha : *lista)
        if (auto uno = dispositivoDe(ficha)) dispositivos.push_back(*std::move(uno));
    return dispositivos;
}

std::optional<std::string> direccionDe(const json &resultado)
{
    const json *conexion = campo(&resultado, "connectionProperties");
    if (texto(conexion, "tunnelState") != "connected") return std::nullopt;
    return texto(conexion, "tunnelIPAddress");
}

} // namespace ovanta::CoreDevice
