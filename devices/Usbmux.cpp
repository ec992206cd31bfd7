#include "devices/Usbmux.h"

#include "devices/ConexionIOS.h"
#include "devices/RegistroBateria.h"

#include <limits>
#include <utility>

namespace ovanta::Usbmux {

namespace {

template <typename Tipo>
using Resultado = std::expected<Tipo, ErrorIOS>;

constexpr std::uint16_t puertoDeLockdown = 62078;
constexpr const char *servicioDeDiagnostico = "com.apple.mobile.diagnostics_relay";

Resultado<DiccionarioPlist> peticion(ConexionIOS &conexion, DiccionarioPlist pedido)
{
    const auto bytes = mensaje(std::move(pedido));
    if (!bytes) return std::unexpected(bytes.error());
    if (const auto enviado = conexion.escribirCrudo(*bytes); !enviado)
        return std::unexpected(enviado.error());
    const auto cabecera = conexion.leerCrudo(bytesDeCabecera);
    if (!cabecera) return std::unexpected(cabecera.error());
    const auto siguen = bytesQueSiguen(*cabecera);
    if (!siguen) return std::unexpected(siguen.error());
    const auto plist = conexion.leerCrudo(*siguen);
    if (!plist) return std::unexpected(plist.error());
    return interpretarRespuesta(*plist);
}

/// What a reading holds on to from step to step.
struct Lectura
{
    Conexiones &conexiones;
    const Dispositivo &dispositivo;
    const Plazo &plazo;
};

Resultado<ConexionIOS> abrir(const Lectura &lectura)
{
    return ConexionIOS::abrirUnix(lectura.conexiones, lectura.conexiones.rutaUsbmuxd(), lectura.plazo);
}

Resultado<Emparejamiento> leerEmparejamiento(const Lectura &lectura)
{
    auto conexion = abrir(lectura);
    if (!conexion) return std::unexpected(conexion.error());
    const auto respuesta =
        peticion(*conexion, {{"MessageType", "ReadPairRecord"}, {"PairRecordID", lectura.dispositivo.udid}});
    if (!respuesta) return std::unexpected(respuesta.error());
    return emparejamientoDe(*respuesta);
}

/// A connection of usbmuxd that from now on leads to a port of the device.
Resultado<ConexionIOS> tunel(const Lectura &lectura, std::uint16_t puerto)
{
    auto conexion = abrir(lectura);
    if (!conexion) return conexion;
    const auto respuesta = peticion(*conexion, {{"MessageType", "Connect"},
                                                {"DeviceID", lectura.dispositivo.id},
                                                {"PortNumber", puertoDeRed(puerto)}});
    if (!respuesta) return std::unexpected(respuesta.error());
    const auto *numero = respuesta->valor<std::int64_t>("Number");
    if (!numero || *numero != 0)
        return std::unexpected(ErrorIOS::protocolo("usbmuxd rechazó la conexión al dispositivo"));
    return conexion;
}

bool pide(const DiccionarioPlist &respuesta, std::string_view clave)
{
    const auto *valor = respuesta.valor<bool>(clave);
    return valor && *valor;
}

/// The `Value` of a GetValue; empty where there is none.
Resultado<DiccionarioPlist> valores(ConexionIOS &lockdown, const DiccionarioPlist &pedido)
{
    const auto respuesta = lockdown.peticion(pedido);
    if (!respuesta) return std::unexpected(respuesta.error());
    const auto *valor = respuesta->valor<DiccionarioPlist>("Value");
    return valor ? *valor : DiccionarioPlist{};
}

template <typename Tipo>
std::optional<Tipo> campo(const DiccionarioPlist &ficha, std::string_view clave)
{
    const auto *valor = ficha.valor<Tipo>(clave);
    return valor ? std::optional(*valor) : std::nullopt;
}

LecturaBateriaIOS fichaDe(const DiccionarioPlist &informacion, const DiccionarioPlist &bateria, bool porRed)
{
    LecturaBateriaIOS ficha;
    ficha.nombre = campo<std::string>(informacion, "DeviceName");
    ficha.modelo = campo<std::string>(informacion, "ProductType");
    ficha.clase = campo<std::string>(informacion, "DeviceClass");
    ficha.version = campo<std::string>(informacion, "ProductVersion");
    ficha.transporte = porRed ? "Wi-Fi" : "cable";
    ficha.porcentaje = campo<std::int64_t>(bateria, "BatteryCurrentCapacity");
    ficha.cargando = campo<bool>(bateria, "BatteryIsCharging");
    return ficha;
}

/// A session with the device's lockdown, encrypted where the device wants that.
struct Sesion
{
    ConexionIOS lockdown;
    std::string id;
};

Resultado<Sesion> abrirSesion(const Lectura &lectura, const Emparejamiento &pareja,
                              const IdentidadTemporal &identidad)
{
    auto lockdown = tunel(lectura, puertoDeLockdown);
    if (!lockdown) return std::unexpected(lockdown.error());
    const auto respuesta = lockdown->peticion(
        {{"Request", "StartSession"}, {"HostID", pareja.hostID}, {"SystemBUID", pareja.systemBUID}});
    if (!respuesta) return std::unexpected(respuesta.error());
    if (pide(*respuesta, "EnableSessionSSL"))
        if (const auto activado = lockdown->activarTLS(identidad, pareja.certificadoDispositivo); !activado)
            return std::unexpected(activado.error());
    return Sesion{*std::move(lockdown), campo<std::string>(*respuesta, "SessionID").value_or("")};
}

/// A connection to the diagnostics relay, which lockdown starts for it.
Resultado<ConexionIOS> abrirDiagnostico(const Lectura &lectura, ConexionIOS &lockdown,
                                        const Emparejamiento &pareja, const IdentidadTemporal &identidad)
{
    const auto respuesta =
        lockdown.peticion({{"Request", "StartService"}, {"Service", servicioDeDiagnostico}});
    if (!respuesta) return std::unexpected(respuesta.error());
    const auto *puerto = respuesta->valor<std::int64_t>("Port");
    if (!puerto || !std::in_range<std::uint16_t>(*puerto))
        return std::unexpected(ErrorIOS::protocolo("El dispositivo no abrió el servicio de diagnóstico."));
    auto servicio = tunel(lectura, static_cast<std::uint16_t>(*puerto));
    if (!servicio || !pide(*respuesta, "EnableServiceSSL")) return servicio;
    if (const auto activado = servicio->activarTLS(identidad, pareja.certificadoDispositivo); !activado)
        return std::unexpected(activado.error());
    return servicio;
}

} // namespace

std::expected<std::vector<Dispositivo>, ErrorIOS> conectados(Conexiones &conexiones, const Plazo &plazo)
{
    auto conexion = ConexionIOS::abrirUnix(conexiones, conexiones.rutaUsbmuxd(), plazo);
    if (!conexion) return std::unexpected(conexion.error());
    const auto respuesta = peticion(*conexion, {{"MessageType", "ListDevices"}});
    if (!respuesta) return std::unexpected(respuesta.error());
    return dispositivosDe(*respuesta);
}

std::expected<LecturaBateriaIOS, ErrorIOS> leer(Conexiones &conexiones, const Dispositivo &dispositivo,
                                                const Plazo &plazo)
{
    const Lectura lectura{conexiones, dispositivo, plazo};
    const auto pareja = leerEmparejamiento(lectura);
    if (!pareja) return std::unexpected(pareja.error());
    const auto identidad = IdentidadTemporal::crear(pareja->certificado, pareja->clave);
    if (!identidad) return std::unexpected(identidad.error());
    auto sesion = abrirSesion(lectura, *pareja, *identidad);
    if (!sesion) return std::unexpected(sesion.error());
    const auto informacion = valores(sesion->lockdown, {{"Request", "GetValue"}});
    if (!informacion) return std::unexpected(informacion.error());
    const auto bateria =
        valores(sesion->lockdown, {{"Request", "GetValue"}, {"Domain", "com.apple.mobile.battery"}});
    auto diagnostico = abrirDiagnostico(lectura, sesion->lockdown, *pareja, *identidad);
    if (!diagnostico) return std::unexpected(diagnostico.error());

    LecturaBateriaIOS ficha = fichaDe(*informacion, bateria.value_or(DiccionarioPlist{}), dispositivo.porRed);
    auto registro = pedirRegistroBateria(*diagnostico);
    if (!registro) return std::unexpected(registro.error());
    ficha.registro = *std::move(registro);
    // The figures are here: a device that does not take leave changes nothing.
    static_cast<void>(sesion->lockdown.peticion({{"Request", "StopSession"}, {"SessionID", sesion->id}}));
    return ficha;
}

} // namespace ovanta::Usbmux
