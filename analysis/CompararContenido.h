#pragma once

#include "analysis/BanderaCancelacion.h"
#include "analysis/Sha256.h"
#include "core/Descriptor.h"
#include "platform/AccesoArchivos.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace ovanta {

/// The SHA-256 of each whole file; of files whose first `desde` bytes are known to be equal, and at
/// least that long. Only one of each kind of content is digested: the others are compared with it byte
/// by byte, which gives the same at half the cost. Nothing for a descriptor that is not open, and for
/// all of them where it was stopped. A read error ends a content as its end would.
std::vector<std::optional<Digesto>> digestosPorComparacion(std::vector<Descriptor> archivos,
                                                           std::uint64_t desde, AccesoArchivos &acceso,
                                                           const BanderaCancelacion *cancelacion);

} // namespace ovanta
