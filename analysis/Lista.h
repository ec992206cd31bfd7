#pragma once

#include <memory>
#include <utility>
#include <vector>

namespace ovanta {

/// A list of findings as it was published: it never changes, a later analysis publishes another.
template <typename Registro>
using Lista = std::shared_ptr<const std::vector<Registro>>;

template <typename Registro>
Lista<Registro> listaDe(std::vector<Registro> registros)
{
    return std::make_shared<const std::vector<Registro>>(std::move(registros));
}

} // namespace ovanta
