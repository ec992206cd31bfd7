#include "monitors/Muestras.h"

#include <algorithm>

namespace ovanta {

namespace {

constexpr double segundosMinimos = 0.5;
constexpr double velocidadImposible = 1e10;

/// How far a counter moved, modulo 2^64: one that went back gives a huge value.
double avance(std::uint64_t antes, std::uint64_t ahora)
{
    return static_cast<double>(ahora - antes);
}

} // namespace

void empujar(std::vector<double> &historial, double valor)
{
    historial.push_back(valor);
    if (historial.size() > largoHistorial)
        historial.erase(historial.begin(), historial.end() - static_cast<std::ptrdiff_t>(largoHistorial));
}

TicksUso ticksUso(const Contadores::Ticks &ticks)
{
    const std::uint64_t uso = ticks.user + ticks.system + ticks.nice;
    return {uso, uso + ticks.idle};
}

std::optional<double> cargaEntre(const TicksUso &antes, const TicksUso &ahora)
{
    if (ahora.total <= antes.total) return std::nullopt;
    // A kernel may take some time back from one counter while the sum grows.
    if (ahora.uso < antes.uso) return 0.0;
    return std::min(avance(antes.uso, ahora.uso) / avance(antes.total, ahora.total), 1.0);
}

double fraccionRAM(const std::optional<Contadores::Memoria> &memoria)
{
    if (!memoria || memoria->fisica == 0) return 0.0;
    const double enUso = static_cast<double>(memoria->apps) + static_cast<double>(memoria->wired) +
                         static_cast<double>(memoria->comprimida);
    return std::min(enUso / static_cast<double>(memoria->fisica), 1.0);
}

VelocidadRed velocidadEntre(const MuestraRed &antes, const MuestraRed &ahora)
{
    const double segundos =
        std::max(std::chrono::duration<double>(ahora.fecha - antes.fecha).count(), segundosMinimos);
    const VelocidadRed velocidad{avance(antes.bytes.entrada, ahora.bytes.entrada) / segundos,
                                 avance(antes.bytes.salida, ahora.bytes.salida) / segundos};
    if (velocidad.bajada > velocidadImposible || velocidad.subida > velocidadImposible) return {};
    return velocidad;
}

} // namespace ovanta
