#pragma once

#include "analysis/EnlacesFisicos.h"
#include "analysis/ListaArchivos.h"

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <optional>
#include <vector>

namespace ovanta {

/// A file that may still have an equal: those of one `conjunto` are equal as far as was looked.
struct Candidato
{
    ListaArchivos::Numero archivo = 0; ///< the first name of the file
    std::uint32_t conjunto = 0;
};

/// Sizes of files, both ends among them.
struct IntervaloDeTamano
{
    std::uint64_t desde = 0;
    std::uint64_t hasta = UINT64_MAX;
};

/// Candidates in the order of the walk. Each set has at least two names.
class Candidatos
{
public:
    /// The files of `tamanos` bytes that share their size with another.
    Candidatos(const ListaArchivos &archivos, IntervaloDeTamano tamanos);

    const std::vector<Candidato> &todos() const { return m_todos; }
    const EnlacesFisicos &enlaces() const { return m_enlaces; }

    /// Splits each set by the keys that were found for its members, one for each of `todos`, and drops
    /// who stands alone; a candidate without a key drops out too. Gives the former place of each that
    /// stays.
    template <typename Clave>
    std::vector<std::uint32_t> separar(const std::vector<std::optional<Clave>> &claves)
    {
        std::vector<std::uint32_t> orden(m_todos.size());
        std::iota(orden.begin(), orden.end(), 0U);
        std::erase_if(orden, [&](std::uint32_t i) { return !claves[i]; });
        const auto conjunto = [&](std::uint32_t i) { return m_todos[i].conjunto; };
        std::ranges::sort(orden, [&](std::uint32_t a, std::uint32_t b) {
            if (conjunto(a) != conjunto(b)) return conjunto(a) < conjunto(b);
            return *claves[a] != *claves[b] ? *claves[a] < *claves[b] : a < b;
        });
        return quedarse(orden, [&](std::uint32_t a, std::uint32_t b) {
            return conjunto(a) == conjunto(b) && *claves[a] == *claves[b];
        });
    }

private:
    static std::vector<ListaArchivos::Numero> mismoTamano(const ListaArchivos &archivos,
                                                          IntervaloDeTamano tamanos);

    /// Of `orden`, in which equals stand side by side, keeps those with an equal as the new sets.
    template <typename Iguales>
    std::vector<std::uint32_t> quedarse(const std::vector<std::uint32_t> &orden, Iguales iguales)
    {
        std::vector<std::uint32_t> quedan;
        std::uint32_t conjunto = 0;
        for (auto primero = orden.begin(); primero != orden.end(); ++conjunto) {
            const auto fin =
                std::find_if_not(primero, orden.end(), [&](std::uint32_t i) { return iguales(*primero, i); });
            const bool solo = fin - primero == 1 && m_enlaces.otrosNombres(m_todos[*primero].archivo).empty();
            for (; primero != fin; ++primero) {
                if (solo) continue;
                m_todos[*primero].conjunto = conjunto;
                quedan.push_back(*primero);
            }
        }
        std::ranges::sort(quedan);
        std::vector<Candidato> nuevos;
        nuevos.reserve(quedan.size());
        for (const std::uint32_t i : quedan)
            nuevos.push_back(m_todos[i]);
        m_todos = std::move(nuevos);
        return quedan;
    }

    Candidatos(const ListaArchivos &archivos, std::vector<ListaArchivos::Numero> mismoTamano);

    EnlacesFisicos m_enlaces;
    std::vector<Candidato> m_todos;
};

} // namespace ovanta
