#pragma once

#include "analysis/ArchivoHallado.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ovanta {

/// Files of the same content. The first copy is the oldest and counts as the original. Hard links of
/// one file are one physical copy, however many names it has.
struct GrupoDuplicados
{
    /// The SHA-256 of the content in hexadecimal, or for a small file "corto-", its size, "-" and that.
    std::string id;
    std::uint64_t bytes = 0;            ///< of one copy
    std::vector<ArchivoHallado> copias; ///< at least 2, oldest first

    bool operator==(const GrupoDuplicados &) const = default;

    /// The bytes that the physical copies beyond the first take, by their logical size.
    std::uint64_t desperdiciado() const;

    /// Whether `archivo` is the very same physical file as the original; false where either has no
    /// identity.
    bool esMismaCopiaFisica(const ArchivoHallado &archivo) const;

    /// All copies that are the same physical file as `archivo`, itself included, in order.
    std::vector<ArchivoHallado> rutasMismaCopiaFisica(const ArchivoHallado &archivo) const;
};

/// What tells one physical file from another: its identity, or its path where it has none.
const std::string &identidadDeCopia(const ArchivoHallado &archivo);

/// The sum over all groups.
std::uint64_t desperdicioTotal(const std::vector<GrupoDuplicados> &grupos);

} // namespace ovanta
