#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace ovanta {

/// A list that grows by blocks: nothing is ever moved, so a million small records cost neither the
/// spare half of a vector nor its copies. `T` is trivial.
template <typename T, std::size_t porBloque>
class Bloques
{
public:
    T &operator[](std::size_t i) { return m_bloques[i / porBloque][i % porBloque]; }
    const T &operator[](std::size_t i) const { return m_bloques[i / porBloque][i % porBloque]; }

    std::size_t size() const { return m_cuantos; }

    void push_back(const T &valor)
    {
        if (m_cuantos == m_bloques.size() * porBloque)
            m_bloques.push_back(std::make_unique_for_overwrite<T[]>(porBloque));
        (*this)[m_cuantos++] = valor;
    }

private:
    std::vector<std::unique_ptr<T[]>> m_bloques;
    std::size_t m_cuantos = 0;
};

} // namespace ovanta
