#include "platform/simulada/dispositivos/RsdSimulado.h"

#include "core/Hexadecimal.h"

#include <algorithm>

namespace ovanta {

namespace {

// Flags of a wrapper, as devices set them.
constexpr std::uint32_t siempre = 0x1;
constexpr std::uint32_t conDatos = 0x100;
constexpr std::uint32_t saludo = 0x200;
constexpr std::uint32_t inicioDeRespuestas = 0x400000;

ValorXpc::Diccionario servicio(const std::string &puerto, const std::string &permiso)
{
    return {{"Entitlement", {permiso}},
            {"Port", {puerto}},
            {"Properties",
             {ValorXpc::Diccionario{{"ServiceVersion", {std::uint64_t{1}}},
                                    {"UsesRemoteXPC", {false}},
                                    {"Features", {ValorXpc::Lista{}}}}}}};
}

ValorXpc::Diccionario propiedades(const OpcionesDispositivo &dispositivo)
{
    return {{"AppleInternal", {false}},
            {"BoardId", {std::int64_t{12}}},
            {"DeviceClass", {dispositivo.clase}},
            {"OSVersion", {dispositivo.version}},
            {"ProductType", {dispositivo.modelo}},
            {"UniqueDeviceID", {dispositivo.udid}}};
}

} // namespace

RsdSimulado::RsdSimulado(EnchufeSimulado &enchufe, const OpcionesRsd &opciones,
                         const DispositivoSimulado &dispositivo, std::uint16_t puertoRele,
                         DiarioSimulado &diario)
    : m_enchufe(enchufe), m_opciones(opciones), m_dispositivo(dispositivo.opciones()),
      m_puertoRele(puertoRele), m_diario(diario)
{
    enchufe.fijarFallos(opciones.fallos);
}

void RsdSimulado::conversar()
{
    switch (m_opciones.clase) {
    case OpcionesRsd::Clase::silencioso:
        m_enchufe.callar();
    case OpcionesRsd::Clase::cierra:
        return;
    case OpcionesRsd::Clase::basura:
        m_enchufe.escribir(std::string(400, '\xd4'));
        m_enchufe.callar();
    case OpcionesRsd::Clase::verdadero:
    case OpcionesRsd::Clase::despedida:
    case OpcionesRsd::Clase::sinFin:
    case OpcionesRsd::Clase::longitudImposible:
        escucharCliente();
    }
}

void RsdSimulado::escucharCliente()
{
    if (m_enchufe.leer(prefacioHttp2.size()) != prefacioHttp2) return;
    enviar({MarcoHttp2::ajustes, 0, 0, ajusteHttp2(3, 100) + ajusteHttp2(4, 1'048'576)});
    if (m_opciones.conAcuse) enviar({MarcoHttp2::ajustes, MarcoHttp2::acuse, 0, ajusteHttp2(3, 1)});
    for (;;)
        atender(MarcoHttp2::leer(m_enchufe));
}

void RsdSimulado::atender(const MarcoHttp2 &marco)
{
    m_diario.anotar(std::to_string(marco.tipo) + ' ' + std::to_string(marco.banderas) + ' ' +
                    std::to_string(marco.flujo) + ' ' + aHexadecimal(marco.carga));
    if (marco.tipo == MarcoHttp2::ajustes && marco.banderas == 0)
        enviar({MarcoHttp2::ajustes, MarcoHttp2::acuse, 0, {}});
    if (marco.tipo == MarcoHttp2::cabeceras)
        enviar({MarcoHttp2::cabeceras, MarcoHttp2::finDeCabeceras, marco.flujo, {}});
    if (marco.tipo != MarcoHttp2::datos) return;
    if (marco.flujo == 3) return anunciar();
    // The two openings of stream 1 are answered in kind.
    const bool primera = m_datosDelFlujo1++ == 0;
    const std::string vacio = objetoXpc({ValorXpc::Diccionario{}});
    enviar({MarcoHttp2::datos, 0, 1,
            primera ? envolturaXpc(siempre, 0, vacio) : envolturaXpc(siempre | saludo, 0, {})});
}

/// The message that the client waits for, or what comes in its place.
void RsdSimulado::anunciar()
{
    enviar({MarcoHttp2::datos, 0, 3, envolturaXpc(siempre | inicioDeRespuestas, 0, {})});
    if (m_opciones.clase == OpcionesRsd::Clase::despedida)
        enviar({MarcoHttp2::despedida, 0, 0, std::string(8, '\0')});
    if (m_opciones.clase == OpcionesRsd::Clase::sinFin)
        for (int i = 0; i < 400; ++i)
            enviar({MarcoHttp2::eco, 0, 0, std::string(8, '\0')});
    if (m_opciones.clase == OpcionesRsd::Clase::longitudImposible) {
        std::string envoltura = envolturaXpc(siempre | conDatos, 1, "");
        envoltura.replace(8, 8, 8, '\xff');
        enviar({MarcoHttp2::datos, 0, 1, envoltura});
    }
    if (m_opciones.clase != OpcionesRsd::Clase::verdadero) return;

    std::vector<MarcoHttp2> marcos = trocear(m_opciones.flujoDeServicios, mensajeDeServicios());
    if (m_opciones.entrelazado) {
        const std::uint32_t otro = m_opciones.flujoDeServicios == 1 ? 3 : 1;
        const std::string largo = objetoXpc({ValorXpc::Diccionario{{"MessageType", {"Heartbeat"}}}});
        const auto suyos = trocear(otro, envolturaXpc(siempre | conDatos, 7, largo));
        for (std::size_t i = 0; i < suyos.size(); ++i)
            marcos.insert(marcos.begin() + static_cast<std::ptrdiff_t>(std::min(2 * i, marcos.size())),
                          suyos[i]);
    }
    for (const MarcoHttp2 &marco : marcos)
        enviar(marco);
}

std::vector<MarcoHttp2> RsdSimulado::trocear(std::uint32_t flujo, const std::string &envolturas) const
{
    const std::size_t fragmento = m_opciones.fragmento == 0 ? envolturas.size() : m_opciones.fragmento;
    std::vector<MarcoHttp2> marcos;
    for (std::size_t i = 0; i < envolturas.size(); i += fragmento)
        marcos.push_back({MarcoHttp2::datos, 0, flujo, envolturas.substr(i, fragmento)});
    return marcos;
}

std::string RsdSimulado::mensajeDeServicios() const
{
    ValorXpc::Diccionario servicios{
        {"com.apple.afc.shim.remote", {servicio("49201", "com.apple.mobile.lockdown.remote.trusted")}},
        {"com.apple.mobile.diagnostics_relay.shim.remote",
         {servicio(std::to_string(m_puertoRele), "com.apple.mobile.lockdown.remote.trusted")}}};
    servicios.insert(servicios.end(), m_opciones.otrosServicios.begin(), m_opciones.otrosServicios.end());
    ValorXpc::Diccionario mensaje{{"MessageType", {"Handshake"}},
                                  {"MessagingProtocolVersion", {std::uint64_t{3}}},
                                  {"Properties", {propiedades(m_dispositivo)}},
                                  {"Services", {servicios}},
                                  {"UUID", {ValorXpc::Uuid{0x5e, 0x0b, 0x31, 0x77}}}};
    std::string envolturas;
    if (m_opciones.conVacias)
        envolturas +=
            envolturaXpc(siempre, 1, {}) + envolturaXpc(siempre | conDatos, 2, objetoXpc({}).substr(0, 8));
    if (m_opciones.conPalabraDesconocida) {
        ValorXpc::Diccionario raro = mensaje;
        raro.push_back({"Raro", {ValorXpc::PalabraSuelta{0x6000}}});
        envolturas += envolturaXpc(siempre | conDatos, 3, objetoXpc({raro}));
    }
    return envolturas + envolturaXpc(siempre | conDatos, 4, objetoXpc({mensaje}));
}

} // namespace ovanta
