#include "ui/componentes/Muelle.h"

#include <cmath>
#include <numbers>

namespace ovanta {

namespace {

constexpr double reposo = 1.0 / 200;
constexpr int tramos = 6;

struct Oscilador
{
    double caida; ///< z w
    double giro;  ///< w sqrt(1 - z^2)

    double posicion(double t) const
    {
        return 1 - std::exp(-caida * t) * (std::cos(giro * t) + caida / giro * std::sin(giro * t));
    }
    double velocidad(double t) const
    {
        return std::exp(-caida * t) * (caida * caida / giro + giro) * std::sin(giro * t);
    }
};

} // namespace

Muelle muelle(double respuesta, double amortiguacion)
{
    const double pulso = 2 * std::numbers::pi / respuesta;
    const Oscilador oscilador{amortiguacion * pulso, pulso * std::sqrt(1 - amortiguacion * amortiguacion)};
    const double duracion = -std::log(reposo) / oscilador.caida;

    QList<qreal> curva;
    // Each stretch is the cubic that has the spring's place and speed at both ends.
    for (int i = 0; i < tramos; ++i) {
        const double desde = duracion * i / tramos;
        const double hasta = duracion * (i + 1) / tramos;
        const double tercio = (hasta - desde) / 3;
        const bool ultimo = i == tramos - 1;
        const double fin = ultimo ? 1.0 : oscilador.posicion(hasta);
        curva << (desde + tercio) / duracion
              << oscilador.posicion(desde) + tercio * oscilador.velocidad(desde)
              << (hasta - tercio) / duracion << (ultimo ? 1.0 : fin - tercio * oscilador.velocidad(hasta))
              << (ultimo ? 1.0 : hasta / duracion) << fin;
    }
    return {static_cast<int>(std::lround(duracion * 1000)), curva};
}

} // namespace ovanta
