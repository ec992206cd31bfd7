#pragma once

#include "core/Fecha.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <numbers>

namespace ovanta {

// Figures that come and go with the time of day, the same at every run.

/// A sine wave around a middle that its height does not exceed.
struct Onda
{
    double altura;
    double periodo; ///< seconds
};

inline double angulo(const Onda &onda, double t)
{
    return 2.0 * std::numbers::pi * t / onda.periodo;
}

inline double valor(double medio, std::initializer_list<Onda> ondas, double t)
{
    for (const Onda &onda : ondas)
        medio += onda.altura * std::sin(angulo(onda, t));
    return medio;
}

/// What a counter shows that grows at the rate of `valor` from 0 on.
inline double suma(double medio, std::initializer_list<Onda> ondas, double t)
{
    double total = medio * t;
    for (const Onda &onda : ondas)
        total += onda.altura * onda.periodo / (2.0 * std::numbers::pi) * (1.0 - std::cos(angulo(onda, t)));
    return total;
}

inline std::uint64_t entero(double cuenta)
{
    return static_cast<std::uint64_t>(std::max(cuenta, 0.0));
}

inline double segundosEntre(Fecha desde, Fecha hasta)
{
    return std::chrono::duration<double>(hasta - desde).count();
}

} // namespace ovanta
