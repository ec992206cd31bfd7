#include "ui/componentes/Rango.h"

#include <algorithm>
#include <cmath>

namespace ovanta {

namespace {

/// Steps are counted in doubles: so near to a whole number is one.
constexpr double holgura = 1e-6;

} // namespace

double Rango::enPaso(double pasos) const
{
    const double ultimo = std::floor((hasta - desde) / paso + holgura);
    // Rid of the noise that tenths leave in doubles: 0.1 + 55 steps of 0.9 is 49.6.
    return std::round((desde + std::clamp(pasos, 0.0, ultimo) * paso) * 1e6) / 1e6;
}

double Rango::ultimo() const
{
    return rejilla ? enPaso((hasta - desde) / paso) : hasta;
}

double Rango::ajustar(double valor) const
{
    if (std::isnan(valor)) return desde;
    return rejilla ? enPaso(std::round((valor - desde) / paso)) : std::clamp(valor, desde, hasta);
}

double Rango::mover(double valor, int pasos) const
{
    if (!rejilla || std::isnan(valor)) return ajustar(valor + paso * pasos);
    const double lugar = (valor - desde) / paso;
    const double firme = pasos > 0 ? std::floor(lugar + holgura) : std::ceil(lugar - holgura);
    return enPaso(firme + pasos);
}

double Rango::fraccion(double valor) const
{
    return std::isnan(valor) ? 0.0 : std::clamp((valor - desde) / (hasta - desde), 0.0, 1.0);
}

} // namespace ovanta
