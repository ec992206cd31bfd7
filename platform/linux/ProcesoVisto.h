#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace ovanta {

/// One user process as a sweep of /proc saw it.
struct ProcesoVisto
{
    std::int32_t pid = 0;
    std::int32_t padre = 0;
    std::uint32_t uid = 0;
    std::uint64_t inicio = 0; ///< clock ticks from the machine's start: proc(5), "stat", field 22
    std::string comm;         ///< the kernel's name for it, at most 15 bytes, of any kind
    /// Its program: the path without " (deleted)", else what its command line names first, else `comm`.
    std::shared_ptr<const std::string> exe;
    std::uint64_t huella = 0;    ///< RssAnon and VmSwap, bytes
    std::uint64_t tiempoCPU = 0; ///< nanoseconds, user and system
};

} // namespace ovanta
