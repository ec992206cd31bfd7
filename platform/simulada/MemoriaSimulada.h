#pragma once

#include "platform/MemoriaSistema.h"
#include "platform/Reloj.h"

#include <mutex>

namespace ovanta {

/// The memory of the simulated Mac: 16 GiB, told in the counters that a Mac keeps. The figures follow
/// from the clock and from how short of memory the machine was made. Any thread.
class MemoriaSimulada final : public MemoriaSistema
{
public:
    explicit MemoriaSimulada(const Reloj &reloj);

    std::uint64_t fisica() override;
    Lectura leer() override;

    /// From now on the machine is that short of memory, and writes swap accordingly.
    void apretar(Nivel nivel);

    static constexpr std::uint64_t tamanoPagina = 16'384;
    static constexpr int diasEncendida = 6; ///< at this object's making

private:
    double paginasEscritas(Fecha ahora) const;

    const Reloj &m_reloj;
    const Fecha m_inicio;
    std::mutex m_cerrojo;
    Nivel m_nivel = Nivel::normal;
    double m_escritas = 0; ///< pages that stood in swap's counter at `m_desde`
    Fecha m_desde;
};

} // namespace ovanta
