#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ovanta {

/// The text of the file `nombre` of a process below `proc`, at most 1 MiB; empty where it cannot be read.
std::string leerDeProceso(const std::string &proc, std::int32_t pid, std::string_view nombre);

/// When the process under that pid began, as in `ProcesoVisto`; nothing where there is none.
std::optional<std::uint64_t> inicioDe(const std::string &proc, std::int32_t pid);

/// The process that started it, or took it over; 0 where there is none.
std::int32_t padreDe(const std::string &proc, std::int32_t pid);

/// Whether the process that began at `inicio` still runs under that pid; one that ended and only
/// waits to be reaped is gone.
bool sigueVivo(const std::string &proc, std::int32_t pid, std::uint64_t inicio);

/// Sends a signal to that very process: a descriptor is opened first and the process behind it compared
/// afterwards, so the signal cannot reach another one that took the pid meanwhile. Whether it was sent.
/// Never to pid 1 or below. Sources: pidfd_open(2), pidfd_send_signal(2)
bool senalarSiEs(const std::string &proc, std::int32_t pid, std::uint64_t inicio, int senal);

} // namespace ovanta
