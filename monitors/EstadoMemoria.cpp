#include "monitors/EstadoMemoria.h"

#include <algorithm>

namespace ovanta {

namespace {

constexpr double paginasDeTension = 50.0;
constexpr double paginasCriticas = 500.0;

} // namespace

std::string_view textoEstado(EstadoMemoria estado)
{
    switch (estado) {
    case EstadoMemoria::normal:
        return "normal";
    case EstadoMemoria::tension:
        return "tension";
    case EstadoMemoria::critico:
        return "critico";
    }
    return {};
}

EstadoMemoria estadoDelNivel(MemoriaSistema::Nivel nivel)
{
    switch (nivel) {
    case MemoriaSistema::Nivel::tension:
        return EstadoMemoria::tension;
    case MemoriaSistema::Nivel::critico:
        return EstadoMemoria::critico;
    case MemoriaSistema::Nivel::normal:
        break;
    }
    return EstadoMemoria::normal;
}

EstadoMemoria estadoMemoria(EstadoMemoria nivelKernel, double swapSalidaPorSeg)
{
    if (swapSalidaPorSeg > paginasCriticas) return EstadoMemoria::critico;
    if (swapSalidaPorSeg > paginasDeTension) return std::max(nivelKernel, EstadoMemoria::tension);
    return nivelKernel;
}

double fraccionMemoria(std::uint64_t usada, std::uint64_t total)
{
    return total == 0 ? 0.0 : static_cast<double>(usada) / static_cast<double>(total);
}

std::optional<double> ritmoSwap(const LecturaSwap &antes, const LecturaSwap &ahora)
{
    if (ahora.swapouts < antes.swapouts) return std::nullopt;
    const double segundos = std::chrono::duration<double>(ahora.fecha - antes.fecha).count();
    return static_cast<double>(ahora.swapouts - antes.swapouts) / std::max(segundos, 1.0);
}

} // namespace ovanta
