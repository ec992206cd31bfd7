#include "platform/simulada/dispositivos/DevicectlSimulado.h"

#include "core/Ejecutar.h"

#include <algorithm>
#include <fstream>
#include <nlohmann/json.hpp>
#include <random>

namespace ovanta {

namespace {

using Argumentos = std::vector<std::string>;
using nlohmann::json;

const Argumentos busqueda{"--find", "devicectl"};

/// An address of its own for each tunnel, so that no two devices, of this program or of another one, are
/// found behind the same one. All of 127.0.0.0/8 belongs to the machine itself.
std::string direccionNueva()
{
    std::random_device azar;
    std::uniform_int_distribution<int> octeto(1, 254);
    std::string direccion = "::ffff:127";
    for (int i = 0; i < 3; ++i)
        direccion += '.' + std::to_string(octeto(azar));
    return direccion;
}

json propiedades(const FichaDevicectl &ficha, const std::optional<std::string> &direccion,
                 const std::string &estado)
{
    const OpcionesDispositivo &opciones = ficha.dispositivo->opciones();
    json conexion{{"pairingState", "paired"}, {"tunnelState", estado}};
    if (ficha.transporte) conexion["transportType"] = *ficha.transporte;
    if (direccion) conexion["tunnelIPAddress"] = *direccion;
    return {{"identifier", ficha.id},
            {"connectionProperties", conexion},
            {"deviceProperties", {{"name", opciones.nombre}, {"osVersionNumber", opciones.version}}},
            {"hardwareProperties",
             {{"udid", opciones.udid},
              {"productType", opciones.modelo},
              {"marketingName", opciones.marketing},
              {"deviceType", opciones.clase},
              {"platform", "iOS"}}}};
}

std::string envuelto(const std::string &orden, const json &resultado)
{
    return json{{"info", {{"commandType", orden}, {"jsonVersion", 2}, {"outcome", "success"}}},
                {"result", resultado}}
        .dump(2);
}

/// What follows an option; empty where it is missing.
std::string tras(const Argumentos &args, std::string_view opcion)
{
    const auto hallada = std::ranges::find(args, opcion);
    return hallada == args.end() || hallada + 1 == args.end() ? std::string{} : *(hallada + 1);
}

bool empieza(const Argumentos &args, const Argumentos &comienzo)
{
    return std::ranges::mismatch(args, comienzo).in2 == comienzo.end();
}

} // namespace

bool DevicectlSimulado::entiende(const std::vector<std::string> &args)
{
    return args == busqueda || empieza(args, {"devicectl"});
}

std::string DevicectlSimulado::responder(const std::vector<std::string> &args)
{
    if (args == busqueda) return "/Applications/Xcode.app/Contents/Developer/usr/bin/devicectl\n";
    std::string respuesta;
    if (empieza(args, {"devicectl", "list", "devices"}))
        respuesta = lista();
    else if (empieza(args, {"devicectl", "device", "info", "details"}))
        respuesta = detalles(tras(args, "--device"));
    else
        throw ShellError::fallo(64, "devicectl: el Mac simulado no conoce esa orden");
    const std::string archivo = tras(args, "-j");
    if (!archivo.empty() && !(std::ofstream(archivo) << respuesta))
        throw ShellError::fallo(1, "devicectl: no se pudo escribir " + archivo);
    return "";
}

std::string DevicectlSimulado::lista() const
{
    json dispositivos = json::array();
    for (const FichaDevicectl &ficha : m_fichas)
        dispositivos.push_back(propiedades(ficha, std::nullopt, "disconnected"));
    return envuelto("devicectl.list.devices", {{"devices", dispositivos}});
}

std::string DevicectlSimulado::detalles(const std::string &id)
{
    const auto ficha = std::ranges::find(m_fichas, id, &FichaDevicectl::id);
    if (ficha == m_fichas.end()) throw ShellError::fallo(1, "devicectl: no hay tal dispositivo: " + id);
    const std::lock_guard guardia{m_cerrojo};
    Tunel &tunel = m_tuneles[id];
    const auto &estados = ficha->estadosDelTunel;
    const std::string estado = estados.at(std::min(tunel.preguntas++, estados.size() - 1));
    std::optional<std::string> direccion;
    if (estado == "connected") direccion = direccionDe(*ficha, tunel);
    return envuelto("devicectl.device.info.details", propiedades(*ficha, direccion, estado));
}

std::string DevicectlSimulado::direccionDe(const FichaDevicectl &ficha, Tunel &tunel)
{
    if (!tunel.puertos) {
        OpcionesRsd esquivo;
        esquivo.clase = OpcionesRsd::Clase::cierra;
        tunel.puertos = std::make_unique<PuertosRsdSimulados>(
            ficha.dispositivo, std::vector{esquivo, OpcionesRsd{}}, direccionNueva());
    }
    return tunel.puertos->direccion();
}

} // namespace ovanta
