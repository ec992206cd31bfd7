#pragma once

#include <cstdint>
#include <optional>

namespace ovanta {

/// What the kernel counts since the start of the machine, and what memory is taken. Cheap enough for
/// a reading every two seconds on the main thread.
class Contadores
{
public:
    /// Processor time of all cores together, in units of the machine's own.
    struct Ticks
    {
        std::uint64_t user = 0;
        std::uint64_t system = 0;
        std::uint64_t idle = 0;
        std::uint64_t nice = 0;

        bool operator==(const Ticks &) const = default;
    };

    /// Bytes over all interfaces to the outside; loopback, tunnels and bridges don't count. The sums
    /// go back when a counter wraps or an interface leaves.
    struct Red
    {
        std::uint64_t entrada = 0;
        std::uint64_t salida = 0;

        bool operator==(const Red &) const = default;
    };

    /// Bytes of memory that cannot be given to somebody else at once, and of the whole.
    struct Memoria
    {
        std::uint64_t apps = 0;
        std::uint64_t wired = 0;
        std::uint64_t comprimida = 0;
        std::uint64_t fisica = 0;
    };

    virtual ~Contadores() = default;

    virtual std::optional<Ticks> procesador() = 0;

    /// Zeros where nothing can be read.
    virtual Red red() = 0;

    virtual std::optional<Memoria> memoria() = 0;
};

} // namespace ovanta
