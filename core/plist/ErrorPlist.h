#pragma once

#include <string>

namespace ovanta {

/// Why a property list could not be read or written.
struct ErrorPlist
{
    enum class Caso {
        malformada,   ///< the bytes are no property list
        excesiva,     ///< well formed as far as it was read, but beyond the limits
        claveSinTexto ///< a dictionary has a key that is no text
    };

    Caso caso = Caso::malformada;
    std::string motivo; ///< Spanish, without a final full stop

    /// For the user: "Lista de propiedades ilegible: " and the reason.
    std::string descripcion() const { return "Lista de propiedades ilegible: " + motivo; }

    bool operator==(const ErrorPlist &) const = default;
};

} // namespace ovanta
