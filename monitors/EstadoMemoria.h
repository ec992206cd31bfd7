#pragma once

#include "core/Fecha.h"
#include "platform/MemoriaSistema.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace ovanta {

/// How short the machine is of memory, from best to worst.
enum class EstadoMemoria { normal, tension, critico };

/// "normal", "tension" or "critico".
std::string_view textoEstado(EstadoMemoria estado);

/// What the system itself says of its pressure.
EstadoMemoria estadoDelNivel(MemoriaSistema::Nivel nivel);

/// The system's own word, or a worse one where swap is being written: more than 50 pages a second are
/// `tension`, more than 500 `critico`.
EstadoMemoria estadoMemoria(EstadoMemoria nivelKernel, double swapSalidaPorSeg);

/// The share of `total` that is taken, from 0 to 1; 0 where `total` is not known.
double fraccionMemoria(std::uint64_t usada, std::uint64_t total);

/// The counter of pages written to swap, and when it was read.
struct LecturaSwap
{
    std::uint64_t swapouts = 0;
    Fecha fecha;
};

/// Pages a second written between two readings, at least one second being reckoned. Nothing where the
/// counter went back.
std::optional<double> ritmoSwap(const LecturaSwap &antes, const LecturaSwap &ahora);

} // namespace ovanta
