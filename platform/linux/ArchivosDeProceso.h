#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace ovanta {

/// What the folder of one process tells; `proc` is the open folder of all of them. Nothing stays open,
/// and a process that is gone or may not be read is no failure.

/// What one read of its file gives, at most as much as fits; nothing on failure. A view into `lugar`.
std::string_view leerDeProceso(int proc, std::int32_t pid, std::string_view archivo, std::span<char> lugar);

/// Its program: the path, else what its command line names first, else `comm`.
std::string programaDeProceso(int proc, std::int32_t pid, std::string_view comm);

/// The user it runs as; 0 where it is gone.
std::uint32_t uidDeProceso(int proc, std::int32_t pid);

/// Whether `proc` numbers the processes as the system calls of this process do: not so in a copy, or
/// in that of another container.
bool esProcPropio(int proc);

/// Nanoseconds that its processor clock shows: clock_getcpuclockid(3). Far cheaper than "stat", and of
/// any user's. Only where `esProcPropio`.
std::optional<std::uint64_t> relojDeProceso(std::int32_t pid);

} // namespace ovanta
