#include "platform/simulada/dispositivos/LockdownSimulado.h"

#include "core/Uuid.h"

namespace ovanta {

namespace {

constexpr const char *dominioBateria = "com.apple.mobile.battery";
constexpr const char *servicioRele = "com.apple.mobile.diagnostics_relay";

DiccionarioPlist error(const PeticionPlist &peticion, const std::string &texto)
{
    return {{"Request", peticion.texto("Request")}, {"Error", texto}};
}

DiccionarioPlist informacion(const OpcionesDispositivo &opciones)
{
    return {{"ActivationState", "Activated"},
            {"BuildVersion", "21G93"},
            {"CPUArchitecture", "arm64e"},
            {"DeviceClass", opciones.clase},
            {"DeviceName", opciones.nombre},
            {"PasswordProtected", true},
            {"ProductType", opciones.modelo},
            {"ProductVersion", opciones.version},
            {"TimeIntervalSince1970", 1'795'000'000.25},
            {"UniqueDeviceID", opciones.udid}};
}

} // namespace

LockdownSimulado::LockdownSimulado(EnchufeSimulado &enchufe, DispositivoSimulado &dispositivo)
    : m_enchufe(enchufe), m_dispositivo(dispositivo), m_opciones(dispositivo.opciones()),
      m_contestador(enchufe, dispositivo.opciones().fallosLockdown)
{
}

void LockdownSimulado::conversar()
{
    std::unique_ptr<CanalSimulado> cifrado;
    for (;;) {
        CanalSimulado &canal = cifrado ? *cifrado : m_enchufe;
        const PeticionPlist peticion = leerMarco(canal);
        const std::string dominio = peticion.texto("Domain");
        const std::string orden = peticion.texto("Request") + (dominio.empty() ? "" : " " + dominio);
        m_dispositivo.diario().anotar("lockdown " + orden + " (" + peticion.texto("Label") + ")");
        const DiccionarioPlist respuesta = responder(peticion, orden);
        m_contestador.contestar(canal, respuesta);
        const bool *activar = respuesta.valor<bool>("EnableSessionSSL");
        if (activar && *activar && !cifrado)
            cifrado = cifrar(m_enchufe, m_dispositivo, m_opciones.alNegociarSesion, "lockdown");
    }
}

DiccionarioPlist LockdownSimulado::responder(const PeticionPlist &peticion, const std::string &orden)
{
    const auto fallo = m_opciones.fallosLockdown.errores.find(orden);
    if (fallo != m_opciones.fallosLockdown.errores.end()) return error(peticion, fallo->second);
    const std::string peticionDe = peticion.texto("Request");
    if (peticionDe == "QueryType") return {{"Request", peticionDe}, {"Type", "com.apple.mobile.lockdown"}};
    if (peticionDe == "StartSession") return abrirSesion(peticion);
    if (m_sesion.empty()) return error(peticion, "SessionInactive");
    if (peticionDe == "GetValue") return valor(peticion);
    if (peticionDe == "StartService") return abrirServicio(peticion);
    if (peticionDe == "StopSession") return cerrarSesion(peticion);
    return error(peticion, "UnknownRequest");
}

DiccionarioPlist LockdownSimulado::abrirSesion(const PeticionPlist &peticion)
{
    const EmparejamientoSimulado &emparejamiento = m_dispositivo.emparejamiento();
    if (!m_opciones.deConfianza || peticion.texto("HostID") != emparejamiento.hostId())
        return error(peticion, "InvalidHostID");
    if (peticion.texto("SystemBUID") != emparejamiento.buid()) return error(peticion, "InvalidBUID");
    if (!m_sesion.empty()) return error(peticion, "SessionActive");
    m_sesion = uuidNuevo();
    DiccionarioPlist respuesta{{"Request", "StartSession"}, {"SessionID", m_sesion}};
    if (m_opciones.sesionCifrada) respuesta.poner("EnableSessionSSL", *m_opciones.sesionCifrada);
    return respuesta;
}

DiccionarioPlist LockdownSimulado::valor(const PeticionPlist &peticion) const
{
    const std::string dominio = peticion.texto("Domain");
    if (dominio.empty()) return {{"Request", "GetValue"}, {"Value", informacion(m_opciones)}};
    DiccionarioPlist respuesta{{"Request", "GetValue"}, {"Domain", dominio}};
    if (dominio == dominioBateria && m_opciones.conDominioDeBateria)
        respuesta.poner("Value", dominioDeBateria(m_opciones.bateria));
    return respuesta;
}

DiccionarioPlist LockdownSimulado::abrirServicio(const PeticionPlist &peticion)
{
    if (m_opciones.bloqueado) return error(peticion, "PasswordProtected");
    if (peticion.texto("Service") != servicioRele) return error(peticion, "InvalidService");
    DiccionarioPlist respuesta{{"Request", "StartService"}, {"Service", servicioRele}};
    if (m_opciones.servicioCifrado) respuesta.poner("EnableServiceSSL", *m_opciones.servicioCifrado);
    if (m_opciones.puertoRele) {
        respuesta.poner("Port", *m_opciones.puertoRele);
        m_dispositivo.abrirRele();
    }
    return respuesta;
}

DiccionarioPlist LockdownSimulado::cerrarSesion(const PeticionPlist &peticion)
{
    if (peticion.texto("SessionID") != m_sesion) return error(peticion, "InvalidSessionID");
    m_sesion.clear();
    return {{"Request", "StopSession"}};
}

} // namespace ovanta
