#pragma once

#include "platform/MemoriaSistema.h"

#include <cstdint>

namespace ovanta {

/// A Mac's counters of memory, in pages: the fields of `vm_statistics64` (mach/vm_statistics.h) that
/// tell what the memory is taken by.
struct PaginasMemoria
{
    std::uint64_t freeCount = 0;
    std::uint64_t wireCount = 0;
    std::uint64_t purgeableCount = 0;
    std::uint64_t compressorPageCount = 0;
    std::uint64_t externalPageCount = 0;
    std::uint64_t internalPageCount = 0;
    std::uint64_t swapouts = 0; ///< since the start of the machine
};

/// The categories in bytes, and `swapouts` as it stands; the other fields keep their initial values.
/// Pages that may be purged are no longer the programs', but cache. A size that does not fit ends the
/// process.
MemoriaSistema::Lectura categoriasDeMemoria(const PaginasMemoria &paginas, std::uint64_t tamanoPagina);

/// What "kern.memorystatus_vm_pressure_level" means: 2 is a warning, 4 is critical, anything else normal.
MemoriaSistema::Nivel nivelDeMemorystatus(std::int32_t nivel);

} // namespace ovanta
