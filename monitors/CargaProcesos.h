#pragma once

#include "core/Fecha.h"
#include "platform/Procesos.h"

#include <cstdint>
#include <map>
#include <vector>

namespace ovanta {

/// The processor time of every process in one sampling, by pid.
struct TiemposCPU
{
    struct Tiempo
    {
        std::uint64_t tiempo = 0; ///< nanoseconds since the process began
        std::uint64_t inicio = 0;
    };

    std::map<std::int32_t, Tiempo> tiempos;
    Fecha fecha;
};

TiemposCPU tiemposCPU(const std::vector<MuestraProceso> &muestras, Fecha fecha);

/// By pid, in per cent of the whole machine: 100 is every core busy.
using FigurasCPU = std::map<std::int32_t, double>;

/// What each process took between two samplings. A process has no figure where it was not there the
/// time before, its time went back, or no more than half a second lies between.
FigurasCPU figurasCPU(const TiemposCPU &antes, const TiemposCPU &ahora, unsigned nucleos);

} // namespace ovanta
