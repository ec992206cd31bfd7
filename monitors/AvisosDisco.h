#pragma once

#include "core/Fecha.h"
#include "core/TextoBytes.h"
#include "monitors/NivelDisco.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace ovanta {

/// Decides when the user is told about the level of free space: at once when it gets worse than
/// what was last told, then again every six hours until there is enough space.
class AvisosDisco
{
public:
    /// A notice is repeated when more than this has passed.
    static constexpr std::chrono::hours repeticion{6};

    /// Whether a notice is due now; if so it counts as given. A return to `ok` forgets everything,
    /// so that the next fall is told at once; a fall from `critico` to `aviso` forgets nothing.
    bool corresponde(NivelDisco nivel, Fecha ahora);

    NivelDisco nivelNotificado() const { return m_nivelNotificado; }
    std::optional<Fecha> ultimaNotificacion() const { return m_ultimaNotificacion; }

private:
    NivelDisco m_nivelNotificado = NivelDisco::ok;
    std::optional<Fecha> m_ultimaNotificacion;
};

/// The title of a notice about a level.
std::string tituloAviso(NivelDisco nivel);

/// The body of every notice. A figure above 2^63 - 1 ends the process: no volume has it.
std::string cuerpoAviso(std::uint64_t libre, std::uint64_t total, const FormaNumeros &forma);

} // namespace ovanta
