#include "monitors/Sparkline.h"

#include <algorithm>

namespace ovanta {

namespace {

double mayor(std::span<const double> valores)
{
    double escala = 1.0;
    for (const double valor : valores)
        escala = std::max(escala, valor);
    return escala;
}

} // namespace

std::vector<PuntoGrafica> puntosSparkline(std::span<const double> valores, double ancho, double alto,
                                          std::optional<double> maximo)
{
    const double escala = maximo ? *maximo : mayor(valores);
    const std::size_t huecos = std::max<std::size_t>(valores.size(), 2);
    const double paso = ancho / static_cast<double>(huecos - 1);
    const std::size_t desplazamiento = huecos - valores.size();
    std::vector<PuntoGrafica> puntos;
    puntos.reserve(valores.size());
    for (std::size_t i = 0; i < valores.size(); ++i)
        puntos.push_back({paso * static_cast<double>(i + desplazamiento),
                          alto * (1.0 - std::min(valores[i] / escala, 1.0))});
    return puntos;
}

} // namespace ovanta
