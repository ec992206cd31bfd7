#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace ovanta {

/// The volume that holds the user's data.
class Volumen
{
public:
    struct Espacio
    {
        std::uint64_t bloque = 0;      ///< bytes a block
        std::uint64_t bloques = 0;     ///< size of the volume
        std::uint64_t disponibles = 0; ///< blocks that an unprivileged user can still take
    };

    virtual ~Volumen() = default;

    /// What the volume is called on screens, for example "/System/Volumes/Data" or "/home".
    virtual std::string nombre() const = 0;

    /// Reads the volume and hands the result, or nothing on failure, to `listo` on the main thread:
    /// before it returns where the reading cannot block, later where the volume is a network one.
    /// A reading that is asked for while an earlier one has not come back gives nothing.
    virtual void leer(std::function<void(std::optional<Espacio>)> listo) = 0;
};

} // namespace ovanta
