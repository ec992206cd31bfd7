#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <numeric>
#include <utility>
#include <vector>

namespace ovanta {

/// Sorts by `comparar` on what `clave` gives of each member; equals keep their order. `clave` is asked
/// once for each member.
template <typename T, typename Comparar, typename Clave>
void ordenarEstable(std::vector<T> &lista, Comparar comparar, Clave clave)
{
    // std::stable_sort of this library takes its buffer by a call that the standard withdrew.
    using Valor = std::decay_t<std::invoke_result_t<Clave, const T &>>;
    std::vector<std::pair<Valor, std::size_t>> orden;
    orden.reserve(lista.size());
    for (std::size_t i = 0; i < lista.size(); ++i)
        orden.emplace_back(std::invoke(clave, lista[i]), i);
    std::sort(orden.begin(), orden.end(), [&](const auto &a, const auto &b) {
        if (comparar(a.first, b.first)) return true;
        return !comparar(b.first, a.first) && a.second < b.second;
    });
    std::vector<T> ordenada;
    ordenada.reserve(lista.size());
    for (const auto &[valor, i] : orden)
        ordenada.push_back(std::move(lista[i]));
    lista = std::move(ordenada);
}

} // namespace ovanta
