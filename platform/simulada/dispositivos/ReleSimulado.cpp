#include "platform/simulada/dispositivos/ReleSimulado.h"

#include "platform/simulada/dispositivos/MarcosSimulados.h"

namespace ovanta {

namespace {

DiccionarioPlist registroPedido(const PeticionPlist &peticion, const OpcionesDispositivo &opciones)
{
    DiccionarioPlist respuesta;
    if (peticion.texto("EntryName") != "AppleSmartBattery") return {{"Status", "Failure"}};
    if (opciones.estadoRele) respuesta.poner("Status", *opciones.estadoRele);
    if (opciones.conDiagnostico)
        respuesta.poner(
            "Diagnostics",
            DiccionarioPlist{{"IORegistry",
                              opciones.registro ? *opciones.registro : registroDeBateria(opciones.bateria)}});
    return respuesta;
}

DiccionarioPlist responder(const PeticionPlist &peticion, const OpcionesDispositivo &opciones)
{
    const std::string orden = peticion.texto("Request");
    const auto fallo = opciones.fallosRele.errores.find(orden);
    if (fallo != opciones.fallosRele.errores.end()) return {{"Error", fallo->second}};
    if (orden == "IORegistry") return registroPedido(peticion, opciones);
    if (orden == "Goodbye") return {{"Status", "Success"}};
    return {{"Status", "UnknownRequest"}};
}

void anotar(DispositivoSimulado &dispositivo, const PeticionPlist &peticion)
{
    const std::string entrada = peticion.texto("EntryName");
    dispositivo.diario().anotar("relé " + peticion.texto("Request") + (entrada.empty() ? "" : " " + entrada) +
                                " (" + peticion.texto("Label") + ")");
}

/// The check-in of a service behind a tunnel: its answer, and the notice that the service has started.
void recibir(CanalSimulado &canal, DispositivoSimulado &dispositivo, Contestador &contestador)
{
    const PeticionPlist peticion = leerMarco(canal);
    anotar(dispositivo, peticion);
    if (peticion.texto("Request") != "RSDCheckin" || peticion.texto("ProtocolVersion") != "2")
        throw FinDeConversacion{};
    contestador.contestar(canal, {{"Request", "RSDCheckin"}});
    contestador.contestar(canal, {{"Request", "StartService"}});
}

} // namespace

void conversarConRele(EnchufeSimulado &enchufe, DispositivoSimulado &dispositivo, AccesoAlRele acceso)
{
    const OpcionesDispositivo &opciones = dispositivo.opciones();
    Contestador contestador(enchufe, opciones.fallosRele);
    std::unique_ptr<CanalSimulado> cifrado;
    if (acceso == AccesoAlRele::porLockdown && opciones.servicioCifrado.value_or(false))
        cifrado = cifrar(enchufe, dispositivo, opciones.alNegociarServicio, "relé");
    CanalSimulado &canal = cifrado ? *cifrado : enchufe;
    if (acceso == AccesoAlRele::porTunel) recibir(canal, dispositivo, contestador);
    for (;;) {
        const PeticionPlist peticion = leerMarco(canal);
        anotar(dispositivo, peticion);
        contestador.contestar(canal, responder(peticion, opciones));
        if (peticion.texto("Request") == "Goodbye") return;
    }
}

} // namespace ovanta
