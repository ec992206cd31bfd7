#pragma once

#include "core/Fecha.h"

#include <cstdint>
#include <optional>

namespace ovanta {

/// The machine's memory by what an ordinary user can make of it.
class MemoriaSistema
{
public:
    /// The pressure as the system itself tells it.
    enum class Nivel { normal, tension, critico };

    /// Bytes unless said. What its source could not tell stays 0.
    struct Lectura
    {
        std::uint64_t apps = 0;       ///< of programs, and not to be had back while they run
        std::uint64_t wired = 0;      ///< of the system, never given back
        std::uint64_t comprimida = 0; ///< taken by the store of compressed pages
        std::uint64_t cache = 0;      ///< file contents that can be dropped at once
        std::uint64_t libre = 0;
        std::uint64_t swapouts = 0; ///< pages written to swap since the start; may go back
        std::uint64_t swapUsado = 0;
        std::uint64_t swapTotal = 0;
        Nivel nivel = Nivel::normal;
        std::optional<Fecha> arranque; ///< when the machine was started

        bool operator==(const Lectura &) const = default;
    };

    virtual ~MemoriaSistema() = default;

    /// Bytes of RAM; 0 where that is not told. Cheap; any thread.
    virtual std::uint64_t fisica() = 0;

    /// Each source fails by itself. May block for some milliseconds; one call at a time, any thread.
    virtual Lectura leer() = 0;
};

} // namespace ovanta
