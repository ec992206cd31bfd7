#pragma once

#include <cstdint>
#include <vector>

namespace ovanta {

/// A process's folder in /proc.
struct EntradaDePid
{
    std::int32_t pid = 0;
    std::uint64_t nodo = 0; ///< inode number; the kernel gives every process's folder a new one

    bool operator==(const EntradaDePid &) const = default;
};

/// Replaces `entradas` by the folders of processes in the open folder `proc`, by pid. Empty where it
/// cannot be read.
void listarPids(int proc, std::vector<EntradaDePid> &entradas);

} // namespace ovanta
