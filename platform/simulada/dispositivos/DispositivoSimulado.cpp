#include "platform/simulada/dispositivos/DispositivoSimulado.h"

#include "platform/simulada/dispositivos/LockdownSimulado.h"
#include "platform/simulada/dispositivos/ReleSimulado.h"

namespace ovanta {

const EmparejamientoSimulado &DispositivoSimulado::emparejamiento()
{
    std::call_once(m_emparejado, [this] { m_emparejamiento.emplace(m_opciones); });
    return *m_emparejamiento;
}

bool DispositivoSimulado::aceptaConexion(std::uint16_t puerto)
{
    if (puerto == puertoLockdown) return true;
    if (puerto != m_opciones.puertoRele) return false;
    int abiertos = m_relesAbiertos;
    while (abiertos > 0 && !m_relesAbiertos.compare_exchange_weak(abiertos, abiertos - 1)) {
    }
    return abiertos > 0;
}

void DispositivoSimulado::conversar(EnchufeSimulado &enchufe, std::uint16_t puerto)
{
    if (puerto == puertoLockdown)
        LockdownSimulado(enchufe, *this).conversar();
    else
        conversarConRele(enchufe, *this, AccesoAlRele::porLockdown);
}

std::unique_ptr<CanalSimulado> cifrar(EnchufeSimulado &enchufe, DispositivoSimulado &dispositivo,
                                      AlNegociar alNegociar, const std::string &servicio)
{
    try {
        auto canal = std::make_unique<CanalTlsSimulado>(enchufe, dispositivo.emparejamiento().identidad(),
                                                        dispositivo.opciones().tls, alNegociar);
        dispositivo.diario().anotar(servicio + " TLS");
        return canal;
    } catch (const FinDeConversacion &) {
        dispositivo.diario().anotar(servicio + " TLS fallido");
        throw;
    }
}

} // namespace ovanta
