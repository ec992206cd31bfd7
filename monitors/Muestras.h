#pragma once

#include "core/Fecha.h"
#include "platform/Contadores.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace ovanta {

/// How many values a history keeps.
inline constexpr std::size_t largoHistorial = 30;

/// Adds the newest value at the end; the oldest ones leave so that `largoHistorial` stay.
void empujar(std::vector<double> &historial, double valor);

/// What two readings of the processor's counters are compared by.
struct TicksUso
{
    std::uint64_t uso = 0;
    std::uint64_t total = 0;
};

TicksUso ticksUso(const Contadores::Ticks &ticks);

/// The share of the time between two readings in which the processor worked, from 0 to 1; nothing
/// where no time was counted or the counters went back.
std::optional<double> cargaEntre(const TicksUso &antes, const TicksUso &ahora);

/// The share of the memory that is taken, from 0 to 1; 0 where it is not known.
double fraccionRAM(const std::optional<Contadores::Memoria> &memoria);

struct MuestraRed
{
    Contadores::Red bytes;
    Fecha fecha;
};

/// Bytes per second.
struct VelocidadRed
{
    double bajada = 0;
    double subida = 0;
};

/// The speed between two readings, at least half a second being reckoned. A counter that wrapped and
/// an interface that left look like more than 10^10 bytes per second: then both speeds are 0.
VelocidadRed velocidadEntre(const MuestraRed &antes, const MuestraRed &ahora);

} // namespace ovanta
