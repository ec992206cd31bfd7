#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ovanta {

/// What names a process for ever and tells whether it still runs. Source: proc(5), "stat".
struct SenasProceso
{
    char estado = '?';
    std::int32_t padre = 0;
    std::uint64_t inicio = 0; ///< as in `ProcesoVisto`

    /// A process that ended and only waits to be reaped counts as gone.
    bool vive() const { return estado != 'Z' && estado != 'X' && estado != 'x'; }

    bool operator==(const SenasProceso &) const = default;
};

/// Reads the text of /proc/<pid>/stat; nothing where it is malformed.
std::optional<SenasProceso> leerSenas(std::string_view stat);

/// The text of the file `nombre` of a process below `proc`, at most 1 MiB; empty where it cannot be read.
std::string leerDeProceso(const std::string &proc, std::int32_t pid, std::string_view nombre);

/// Whether the process that began at `inicio` still runs under that pid.
bool sigueVivo(const std::string &proc, std::int32_t pid, std::uint64_t inicio);

/// Sends a signal to that very process: a descriptor is opened first and the process behind it compared
/// afterwards, so the signal cannot reach another one that took the pid meanwhile. Whether it was sent.
/// Never to pid 1 or below. Sources: pidfd_open(2), pidfd_send_signal(2)
bool senalarSiEs(const std::string &proc, std::int32_t pid, std::uint64_t inicio, int senal);

} // namespace ovanta
