#pragma once

#include "analysis/BanderaCancelacion.h"
#include "analysis/DigestosAparte.h"
#include "core/Descriptor.h"
#include "platform/AccesoArchivos.h"

#include <cstdint>
#include <vector>

namespace ovanta {

struct PorComparar
{
    Descriptor archivo;      ///< one that is not open drops out
    std::uint64_t bytes = 0; ///< its size
    bool importaSolo = true; ///< whether its digest is wanted where none of the others is equal to it
};

/// Files of one content by their places among those that were compared.
struct ContenidoComparado
{
    const Digesto *digesto = nullptr; ///< there once `DigestosAparte::esperar` has returned
    std::vector<std::size_t> archivos;
};

/// The kinds of content among files whose first `desde` bytes are known to be equal, and at least that
/// long. Only one of each kind is digested: the others are compared with it byte by byte, which gives the
/// same at half the cost. One that is alone and does not matter alone is only read to see that it ends where
/// it should, and left out. Empty where it was stopped. A read error ends a content as its end would.
std::vector<ContenidoComparado> compararContenido(std::vector<PorComparar> archivos, std::uint64_t desde,
                                                  AccesoArchivos &acceso, DigestosAparte &digestos,
                                                  const BanderaCancelacion *cancelacion);

} // namespace ovanta
