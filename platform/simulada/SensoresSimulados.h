#pragma once

#include "platform/Bateria.h"
#include "platform/Contadores.h"
#include "platform/Reloj.h"
#include "platform/Termico.h"

namespace ovanta {

// The sensors of a laptop that is being worked at. Every figure follows from the clock alone, so the
// same moments give the same figures. Main thread.

/// Eight cores and 16 GiB whose load comes and goes in waves, and a network beside them. The counters
/// start at this object's making.
class ContadoresSimulados final : public Contadores
{
public:
    explicit ContadoresSimulados(const Reloj &reloj) : m_reloj(reloj), m_inicio(reloj.ahora()) {}

    std::optional<Ticks> procesador() override;
    Red red() override;
    std::optional<Memoria> memoria() override;

    static constexpr std::uint64_t nucleos = 8;
    static constexpr std::uint64_t bytesFisicos = 16ULL << 30;

private:
    double segundos() const;

    const Reloj &m_reloj;
    Fecha m_inicio;
};

class TermicoSimulado final : public Termico
{
public:
    EstadoTermico estado() override { return m_estado; }

    void fijar(EstadoTermico estado) { m_estado = estado; }

private:
    EstadoTermico m_estado = EstadoTermico::nominal;
};

/// A battery that lasts eight hours and charges in two. It starts unplugged.
class BateriaSimulada final : public Bateria
{
public:
    explicit BateriaSimulada(const Reloj &reloj) : m_reloj(reloj), m_desde(reloj.ahora()) {}

    void leer(std::function<void(std::optional<EstadoBateria>)> listo) override;

    /// The user plugs the charger in or pulls it.
    void enchufar(bool enCorriente);
    /// Sets the charge that stands there now, from 0 to 1.
    void fijarCarga(double carga);
    /// Makes it a machine without battery, or one with it again.
    void fijarPresente(bool presente) { m_presente = presente; }

private:
    double carga() const;

    const Reloj &m_reloj;
    Fecha m_desde; ///< moment of `m_carga`
    double m_carga = 0.78;
    bool m_enCorriente = false;
    bool m_presente = true;
};

} // namespace ovanta
