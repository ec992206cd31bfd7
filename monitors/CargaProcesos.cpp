#include "monitors/CargaProcesos.h"

#include <algorithm>

namespace ovanta {

TiemposCPU tiemposCPU(const std::vector<MuestraProceso> &muestras, Fecha fecha)
{
    TiemposCPU tiempos{{}, fecha};
    for (const MuestraProceso &muestra : muestras)
        tiempos.tiempos[muestra.pid] = {muestra.tiempoCPU, muestra.inicio};
    return tiempos;
}

FigurasCPU figurasCPU(const TiemposCPU &antes, const TiemposCPU &ahora, unsigned nucleos)
{
    constexpr double segundosMinimos = 0.5;
    const double segundos = std::chrono::duration<double>(ahora.fecha - antes.fecha).count();
    if (!(segundos > segundosMinimos)) return {};
    FigurasCPU figuras;
    for (const auto &[pid, actual] : ahora.tiempos) {
        const auto previo = antes.tiempos.find(pid);
        if (previo == antes.tiempos.end()) continue;
        if (previo->second.inicio != actual.inicio || actual.tiempo < previo->second.tiempo) continue;
        const double trabajados = static_cast<double>(actual.tiempo - previo->second.tiempo) / 1e9;
        figuras[pid] = trabajados / segundos * 100.0 / std::max(nucleos, 1U);
    }
    return figuras;
}

} // namespace ovanta
