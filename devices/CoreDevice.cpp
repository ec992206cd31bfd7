#include "devices/CoreDevice.h"

#include "core/Ejecutar.h"
#include "core/LeerArchivo.h"
#include "core/Rutas.h"
#include "core/Uuid.h"
#include "devices/ConexionIOS.h"
#include "devices/RSD.h"
#include "devices/RegistroBateria.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace ovanta::CoreDevice {

namespace {

using nlohmann::json;
using std::chrono::milliseconds;

constexpr const char *xcrun = "/usr/bin/xcrun";
constexpr const char *servicioDeDiagnostico = "com.apple.mobile.diagnostics_relay.shim.remote";
constexpr std::uint64_t maximoDeArchivo = 32 * 1024 * 1024; // a list of devices takes some KiB each
constexpr int intentosDeTunel = 2;
constexpr milliseconds esperaDelServicio{5'000};

/// Where the tool puts its answer; the file goes away with this.
class ArchivoDeRespuesta
{
public:
    ArchivoDeRespuesta()
    {
        std::error_code sinTemporal;
        const auto carpeta = std::filesystem::temp_directory_path(sinTemporal);
        m_ruta = unir(sinTemporal ? "/tmp" : carpeta.native(), "ovanta-devicectl-" + uuidNuevo() + ".json");
    }
    ArchivoDeRespuesta(const ArchivoDeRespuesta &) = delete;
    ArchivoDeRespuesta &operator=(const ArchivoDeRespuesta &) = delete;
    ~ArchivoDeRespuesta()
    {
        std::error_code ignorado;
        std::filesystem::remove(m_ruta, ignorado);
    }

    const std::string &ruta() const { return m_ruta; }

private:
    std::string m_ruta;
};

struct Fallo
{
    ErrorIOS error;
    bool sinHerramienta = false; ///< this machine has no such tool
};

/// The `result` that the tool answers with.
std::expected<json, Fallo> devicectl(Herramientas &herramientas, const std::vector<std::string> &argumentos,
                                     milliseconds timeout, const Plazo &plazo)
{
    const ArchivoDeRespuesta archivo;
    std::vector<std::string> todos{"devicectl"};
    todos.insert(todos.end(), argumentos.begin(), argumentos.end());
    todos.insert(todos.end(), {"-j", archivo.ruta(), "-q"});
    bool sinHerramienta = false;
    try {
        const std::chrono::duration<double> limite = std::min(timeout, plazo.restante());
        herramientas.ejecutar(xcrun, todos, limite.count(), true);
    } catch (const ShellError &error) {
        sinHerramienta = error.caso() == ShellError::Caso::noEncontrado;
    } catch (const std::exception &) {
        // What counts is the file, here as above.
    }
    try {
        auto resultado = resultadoDe(leerArchivo(archivo.ruta(), maximoDeArchivo, EnlaceFinal::rechazar));
        if (!resultado) return std::unexpected(Fallo{resultado.error(), sinHerramienta});
        return *std::move(resultado);
    } catch (const ErrorDeLectura &) {
        return std::unexpected(Fallo{sinDatosDeXcode(), sinHerramienta});
    }
}

} // namespace

std::expected<std::vector<Dispositivo>, ErrorIOS> conectados(Herramientas &herramientas, const Plazo &plazo)
{
    const auto resultado = devicectl(herramientas, {"list", "devices"}, milliseconds(60'000), plazo);
    if (resultado) return dispositivosDe(*resultado);
    if (resultado.error().sinHerramienta) return std::vector<Dispositivo>{};
    return std::unexpected(resultado.error().error);
}

std::expected<std::string, ErrorIOS> abrirTunel(Herramientas &herramientas, const Dispositivo &dispositivo,
                                                const Plazo &plazo)
{
    for (int intento = 0; intento < intentosDeTunel; ++intento) {
        const auto resultado =
            devicectl(herramientas, {"device", "info", "details", "--device", dispositivo.id},
                      milliseconds(45'000), plazo);
        if (!resultado) return std::unexpected(resultado.error().error);
        if (auto direccion = direccionDe(*resultado)) return *std::move(direccion);
    }
    return std::unexpected(ErrorIOS::protocolo(
        "No se pudo abrir la conexión con el dispositivo. Desbloquéalo e inténtalo de nuevo."));
}

namespace {

/// A connection to the diagnostics relay at the far end of the tunnel, checked in.
std::expected<ConexionIOS, ErrorIOS> abrirDiagnostico(Conexiones &conexiones, const std::string &ip,
                                                      const Plazo &plazo)
{
    const auto servicios = RSD::servicios(conexiones, ip, plazo);
    if (!servicios) return std::unexpected(servicios.error());
    const auto puerto = servicios->find(servicioDeDiagnostico);
    if (puerto == servicios->end())
        return std::unexpected(ErrorIOS::protocolo("El dispositivo no ofrece el servicio de diagnóstico."));
    auto conexion = ConexionIOS::abrirTcp6(conexiones, ip, puerto->second, esperaDelServicio, plazo);
    if (!conexion) return conexion;
    const auto enviado =
        conexion->enviarPlist({{"Label", "Ovanta"}, {"ProtocolVersion", "2"}, {"Request", "RSDCheckin"}});
    if (!enviado) return std::unexpected(enviado.error());
    // The answer to the check-in, and the notice that the service has started.
    for (int i = 0; i < 2; ++i)
        if (const auto respuesta = conexion->recibirPlist(); !respuesta)
            return std::unexpected(respuesta.error());
    return conexion;
}

} // namespace

std::expected<LecturaBateriaIOS, ErrorIOS> leer(Herramientas &herramientas, Conexiones &conexiones,
                                                const Dispositivo &dispositivo, const Plazo &plazo)
{
    const auto ip = abrirTunel(herramientas, dispositivo, plazo);
    if (!ip) return std::unexpected(ip.error());
    auto diagnostico = abrirDiagnostico(conexiones, *ip, plazo);
    if (!diagnostico) return std::unexpected(diagnostico.error());
    auto registro = pedirRegistroBateria(*diagnostico);
    if (!registro) return std::unexpected(registro.error());
    return LecturaBateriaIOS{.nombre = dispositivo.nombre,
                             .modelo = dispositivo.modelo,
                             .marketing = dispositivo.marketing,
                             .clase = dispositivo.clase,
                             .version = dispositivo.version,
                             .transporte = dispositivo.transporte,
                             .registro = *std::move(registro),
                             .porcentaje = std::nullopt,
                             .cargando = std::nullopt};
}

} // namespace ovanta::CoreDevice
