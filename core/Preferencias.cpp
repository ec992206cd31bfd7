#include "core/Preferencias.h"

#include <cmath>

namespace ovanta {

bool Preferencias::booleano(std::string_view clave) const
{
    return booleanoSiHay(clave).value_or(false);
}

std::optional<bool> Preferencias::booleanoSiHay(std::string_view clave) const
{
    const auto valor = leer(clave);
    if (!valor) return std::nullopt;
    if (const bool *b = std::get_if<bool>(&*valor)) return *b;
    return std::nullopt;
}

double Preferencias::real(std::string_view clave) const
{
    const auto valor = leer(clave);
    if (!valor) return 0.0;
    if (const double *d = std::get_if<double>(&*valor)) return *d;
    if (const auto *i = std::get_if<std::int64_t>(&*valor)) return static_cast<double>(*i);
    return 0.0;
}

std::int64_t Preferencias::entero(std::string_view clave) const
{
    const auto valor = leer(clave);
    if (!valor) return 0;
    if (const auto *i = std::get_if<std::int64_t>(&*valor)) return *i;
    if (const double *d = std::get_if<double>(&*valor)) {
        // Beyond this a double no longer fits the whole number; what lies there is no setting of ours.
        return std::abs(*d) < 9.0e18 ? static_cast<std::int64_t>(*d) : 0;
    }
    return 0;
}

std::vector<std::string> Preferencias::lista(std::string_view clave) const
{
    const auto valor = leer(clave);
    if (!valor) return {};
    if (const auto *l = std::get_if<std::vector<std::string>>(&*valor)) return *l;
    return {};
}

} // namespace ovanta
