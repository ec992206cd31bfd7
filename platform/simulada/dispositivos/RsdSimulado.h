#pragma once

#include "platform/simulada/dispositivos/Http2Simulado.h"
#include "platform/simulada/dispositivos/PuertosRsdSimulados.h"

namespace ovanta {

/// One conversation with the discovery service of a device, or with what stands in its place.
class RsdSimulado
{
public:
    /// All outlive this object.
    RsdSimulado(EnchufeSimulado &enchufe, const OpcionesRsd &opciones, const DispositivoSimulado &dispositivo,
                std::uint16_t puertoRele, DiarioSimulado &diario);

    /// To its end.
    void conversar();

private:
    void escucharCliente();
    void atender(const MarcoHttp2 &marco);
    void anunciar();
    std::vector<MarcoHttp2> trocear(std::uint32_t flujo, const std::string &envolturas) const;
    std::string mensajeDeServicios() const;
    void enviar(const MarcoHttp2 &marco) { m_enchufe.escribir(marco.bytes()); }

    EnchufeSimulado &m_enchufe;
    const OpcionesRsd &m_opciones;
    const OpcionesDispositivo &m_dispositivo;
    std::uint16_t m_puertoRele;
    DiarioSimulado &m_diario;
    int m_datosDelFlujo1 = 0;
};

} // namespace ovanta
