#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace ovanta {

/// What a sweep needs of /proc/<pid>/stat: proc_pid_stat(5).
struct LineaStat
{
    std::string_view comm; ///< a view into the text; any bytes but NUL, parentheses and newlines too
    char estado = 0;
    std::int32_t padre = 0;
    bool delNucleo = false;   ///< a thread of the kernel
    std::uint64_t ticks = 0;  ///< user and system time, clock ticks
    std::uint64_t inicio = 0; ///< clock ticks from the machine's start

    /// Whether it has ended and only waits to be collected.
    bool acabado() const { return estado == 'Z' || estado == 'X' || estado == 'x'; }
    bool operator==(const LineaStat &) const = default;
};

/// Nothing for a text that ends before the start time or is of another shape.
std::optional<LineaStat> interpretarLineaStat(std::string_view texto);

/// Pages, of /proc/<pid>/statm: proc_pid_statm(5).
struct LineaStatm
{
    std::uint64_t propias = 0; ///< resident, and neither of a file nor shared: RssAnon
    std::uint64_t codigo = 0;  ///< of the program's text: seldom the same in two programs

    bool operator==(const LineaStatm &) const = default;
};

/// Nothing for a text of another shape.
std::optional<LineaStatm> interpretarLineaStatm(std::string_view texto);

/// What is swapped out of a process, bytes: VmSwap of /proc/<pid>/status. 0 where that is not told.
std::uint64_t interpretarVmSwap(std::string_view texto);

/// The program that a command line (its arguments end with NUL) names first: without what a program
/// that rewrote its own line put behind. Empty where nothing is named.
std::string_view programaDeCmdline(std::string_view texto);

/// The path that a link "exe" tells, without the kernel's " (deleted)"; empty for one that is not
/// absolute, as of a program outside this root.
std::string_view rutaDeExe(std::string_view enlace);

} // namespace ovanta
