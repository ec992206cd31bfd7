#include "platform/linux/CombinarBaterias.h"

#include <algorithm>
#include <numeric>

namespace ovanta {

namespace {

using Baterias = std::vector<LecturaBateria>;

/// What lasts longer is a battery that gives nothing, not a forecast.
constexpr double minutosCreibles = 10.0 * 24 * 60;

double suma(const Baterias &baterias, double LecturaBateria::*cantidad)
{
    return std::accumulate(
        baterias.begin(), baterias.end(), 0.0,
        [cantidad](double total, const LecturaBateria &una) { return total + una.*cantidad; });
}

bool todas(const Baterias &baterias, double LecturaBateria::*cantidad)
{
    return std::ranges::all_of(baterias, [cantidad](const LecturaBateria &una) { return una.*cantidad > 0; });
}

/// Cut to a whole number from 0 to `tope`; what is no number counts as 0.
int entero(double valor, double tope)
{
    return valor > 0 ? static_cast<int>(std::min(valor, tope)) : 0;
}

std::optional<double> media(const Baterias &baterias)
{
    double total = 0;
    for (const LecturaBateria &una : baterias) {
        if (!una.porcentaje) return std::nullopt;
        total += *una.porcentaje;
    }
    return total / static_cast<double>(baterias.size());
}

/// A single battery knows its charge best; that of several is what they hold together.
std::optional<int> porcentajeDe(const Baterias &baterias)
{
    std::optional<double> porcentaje = media(baterias);
    if ((baterias.size() > 1 || !porcentaje) && todas(baterias, &LecturaBateria::lleno))
        porcentaje =
            suma(baterias, &LecturaBateria::contenido) * 100.0 / suma(baterias, &LecturaBateria::lleno);
    if (!porcentaje) return std::nullopt;
    return entero(*porcentaje, 100);
}

std::optional<int> minutosDe(const Baterias &baterias)
{
    double minutos = 0;
    if (baterias.size() == 1 && baterias[0].segundos)
        minutos = *baterias[0].segundos / 60.0;
    else if (const double ritmo = suma(baterias, &LecturaBateria::ritmo); ritmo > 0)
        minutos = suma(baterias, &LecturaBateria::contenido) / ritmo * 60.0;
    if (!(minutos >= 1.0 && minutos <= minutosCreibles)) return std::nullopt;
    return static_cast<int>(minutos);
}

std::optional<int> saludDe(const Baterias &baterias)
{
    if (!todas(baterias, &LecturaBateria::lleno) || !todas(baterias, &LecturaBateria::deFabrica))
        return std::nullopt;
    const double salud =
        suma(baterias, &LecturaBateria::lleno) * 100.0 / suma(baterias, &LecturaBateria::deFabrica);
    return entero(salud, 100);
}

std::optional<int> ciclosDe(const Baterias &baterias)
{
    const int ciclos = std::ranges::max(baterias, {}, &LecturaBateria::ciclos).ciclos;
    if (ciclos < 1) return std::nullopt; // drivers that cannot count say 0
    return ciclos;
}

} // namespace

std::optional<EstadoBateria> combinarBaterias(const LecturaBaterias &lectura)
{
    const Baterias &baterias = lectura.baterias;
    if (baterias.empty()) return std::nullopt;
    const std::optional<int> porcentaje = porcentajeDe(baterias);
    if (!porcentaje) return std::nullopt;
    const bool descargando = std::ranges::any_of(baterias, &LecturaBateria::descargando);
    EstadoBateria estado;
    estado.porcentaje = *porcentaje;
    estado.cargando = std::ranges::any_of(baterias, &LecturaBateria::cargando);
    estado.enCorriente = lectura.enCorriente.value_or(!descargando);
    if (descargando && !estado.enCorriente) estado.minutosRestantes = minutosDe(baterias);
    estado.ciclos = ciclosDe(baterias);
    estado.salud = saludDe(baterias);
    return estado;
}

} // namespace ovanta
