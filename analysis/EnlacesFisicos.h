#pragma once

#include "analysis/ListaArchivos.h"

#include <span>
#include <unordered_map>
#include <vector>

namespace ovanta {

/// Files with several names (hard links), so that each is read once.
class EnlacesFisicos
{
public:
    /// Takes the further names out of `archivos`, which stand in the order of the walk: the first name
    /// of each file stays.
    EnlacesFisicos(const ListaArchivos &lista, std::vector<ListaArchivos::Numero> &archivos);

    /// The further names of a file by its first, in the order of the walk.
    std::span<const ListaArchivos::Numero> otrosNombres(ListaArchivos::Numero primero) const;

    /// All names of a file that still name it.
    std::vector<ListaArchivos::Numero> nombresQueQuedan(const ListaArchivos &lista,
                                                        ListaArchivos::Numero primero) const;

private:
    std::unordered_map<ListaArchivos::Numero, std::vector<ListaArchivos::Numero>> m_otros;
};

} // namespace ovanta
