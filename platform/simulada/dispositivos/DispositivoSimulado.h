#pragma once

#include "platform/simulada/dispositivos/DiarioSimulado.h"
#include "platform/simulada/dispositivos/EmparejamientoSimulado.h"

#include <atomic>
#include <mutex>

namespace ovanta {

/// An iPhone or iPad that does not exist: what stands behind its ports. Any thread, several
/// conversations at once.
class DispositivoSimulado
{
public:
    static constexpr std::uint16_t puertoLockdown = 62'078;

    explicit DispositivoSimulado(OpcionesDispositivo opciones) : m_opciones(std::move(opciones)) {}

    const OpcionesDispositivo &opciones() const { return m_opciones; }
    /// Made when it is first asked for.
    const EmparejamientoSimulado &emparejamiento();
    /// Each request with its label, and what became of each handshake.
    DiarioSimulado &diario() { return m_diario; }
    const DiarioSimulado &diario() const { return m_diario; }

    /// Whether a connection to that port comes about now: always to lockdown, once to the relay for each
    /// time that lockdown started it.
    bool aceptaConexion(std::uint16_t puerto);
    /// The conversation behind a port whose connection was accepted, to its end.
    void conversar(EnchufeSimulado &enchufe, std::uint16_t puerto);
    /// Lockdown started the relay.
    void abrirRele() { ++m_relesAbiertos; }

private:
    OpcionesDispositivo m_opciones;
    DiarioSimulado m_diario;
    std::once_flag m_emparejado;
    std::optional<EmparejamientoSimulado> m_emparejamiento;
    std::atomic<int> m_relesAbiertos = 0;
};

/// The server's half of a handshake of that device, noted in its diary.
std::unique_ptr<CanalSimulado> cifrar(EnchufeSimulado &enchufe, DispositivoSimulado &dispositivo,
                                      AlNegociar alNegociar, const std::string &servicio);

} // namespace ovanta
