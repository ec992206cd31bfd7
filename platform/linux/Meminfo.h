#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace ovanta {

/// What /proc/meminfo tells, in bytes: proc_meminfo(5). A field that this kernel lacks stays 0.
struct Meminfo
{
    std::uint64_t memTotal = 0;
    std::uint64_t memFree = 0;
    std::uint64_t memAvailable = 0; ///< where not told (before Linux 3.14) what is free or cache
    std::uint64_t buffers = 0;
    std::uint64_t cached = 0;
    std::uint64_t anonPages = 0;
    std::uint64_t shmem = 0;
    std::uint64_t sReclaimable = 0;
    std::uint64_t sUnreclaim = 0;
    std::uint64_t kernelStack = 0;
    std::uint64_t pageTables = 0;
    std::uint64_t percpu = 0;
    std::uint64_t mlocked = 0;
    std::uint64_t zswap = 0; ///< what zswap's store takes
    std::uint64_t swapTotal = 0;
    std::uint64_t swapFree = 0;

    /// Of programs: anonymous and shared memory.
    std::uint64_t apps() const;
    /// What the kernel holds, and what is locked.
    std::uint64_t wired() const;
    /// File contents and kernel caches that can be dropped; shared memory is no such thing.
    std::uint64_t cache() const;
    std::uint64_t swapUsado() const;

    bool operator==(const Meminfo &) const = default;
};

/// Nothing where the size of the memory is not told.
std::optional<Meminfo> interpretarMeminfo(std::string_view texto);

} // namespace ovanta
