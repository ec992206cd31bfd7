#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ovanta {

/// The memory that one zram device takes, of its "mm_stat"; 0 where that is not told.
std::uint64_t interpretarZram(std::string_view texto);

/// Bytes that were written to a block device, of its "stat" (seventh number, sectors of 512 bytes:
/// Documentation/block/stat.rst); 0 where that is not told.
std::uint64_t interpretarBytesEscritos(std::string_view texto);

/// Pages that went to any swap device since the start, of /proc/vmstat; 0 where that is not told.
std::uint64_t interpretarPswpout(std::string_view texto);

/// The swap devices of /proc/swaps that only compress in memory.
struct SwapEnZram
{
    std::vector<std::string> dispositivos; ///< for example "zram0"
    std::uint64_t total = 0;               ///< bytes
    std::uint64_t usado = 0;

    bool operator==(const SwapEnZram &) const = default;
};

SwapEnZram interpretarSwaps(std::string_view texto);

/// The share of the last ten seconds in which some tasks, or all of them, waited for memory, in
/// hundredths of a per cent: Documentation/accounting/psi.rst.
struct PresionPSI
{
    std::uint64_t some = 0;
    std::uint64_t full = 0;

    bool operator==(const PresionPSI &) const = default;
};

/// /proc/pressure/memory; nothing unless it tells both.
std::optional<PresionPSI> interpretarPresion(std::string_view texto);

} // namespace ovanta
