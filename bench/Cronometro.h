#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <ctime>
#include <utility>
#include <vector>

namespace ovanta {

template <typename Accion>
double microsegundosPorVez(int veces, Accion accion)
{
    using Reloj = std::chrono::steady_clock;
    const auto desde = Reloj::now();
    for (int i = 0; i < veces; ++i)
        accion();
    return std::chrono::duration<double, std::micro>(Reloj::now() - desde).count() / veces;
}

/// Processor time that this thread has had so far: what others run meanwhile does not count.
inline double procesadorUs()
{
    timespec tiempo;
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &tiempo);
    return static_cast<double>(tiempo.tv_sec) * 1e6 + static_cast<double>(tiempo.tv_nsec) / 1e3;
}

inline double mediana(std::vector<double> valores)
{
    const auto medio = valores.begin() + static_cast<std::ptrdiff_t>(valores.size() / 2);
    std::ranges::nth_element(valores, medio);
    return *medio;
}

/// What one of each takes, in microseconds: the median of rounds in which both take turns, so that the
/// machine's moods fall on either.
template <typename Nuestra, typename Ajena>
std::pair<double, double> compararPorTandas(int tandas, int porTanda, Nuestra nuestra, Ajena ajena)
{
    std::vector<double> nuestras, ajenas;
    for (int i = 0; i < tandas; ++i) {
        nuestras.push_back(microsegundosPorVez(porTanda, nuestra));
        ajenas.push_back(microsegundosPorVez(porTanda, ajena));
    }
    return {mediana(std::move(nuestras)), mediana(std::move(ajenas))};
}

} // namespace ovanta
