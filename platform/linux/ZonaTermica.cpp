#include "platform/linux/ZonaTermica.h"

#include <algorithm>

namespace ovanta {

namespace {

constexpr int margen = 5000;

bool alcanza(int temperatura, const std::optional<int> &punto, int antes)
{
    return punto && temperatura >= *punto - antes;
}

} // namespace

void PuntosTermicos::anotar(std::string_view clase, int temperatura)
{
    std::optional<int> *punto = clase == "passive"    ? &pasivo
                                : clase == "hot"      ? &caliente
                                : clase == "critical" ? &critico
                                                      : nullptr;
    if (!punto || temperatura <= 0) return;
    *punto = std::min(punto->value_or(temperatura), temperatura);
}

EstadoTermico estadoDeZona(int temperatura, const PuntosTermicos &puntos)
{
    if (alcanza(temperatura, puntos.caliente, 0) || alcanza(temperatura, puntos.critico, margen))
        return EstadoTermico::critical;
    if (alcanza(temperatura, puntos.pasivo, 0)) return EstadoTermico::serious;
    if (alcanza(temperatura, puntos.pasivo, margen)) return EstadoTermico::fair;
    return EstadoTermico::nominal;
}

} // namespace ovanta
