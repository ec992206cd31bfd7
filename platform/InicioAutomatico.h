#pragma once

#include <expected>
#include <string>

namespace ovanta {

/// Whether the session starts the program by itself when the user logs in. Blocking; any thread, one
/// call at a time.
class InicioAutomatico
{
public:
    virtual ~InicioAutomatico() = default;

    /// As the system has it now; what cannot be read counts as off.
    virtual bool activado() = 0;

    /// Turns it on or off. The error is a Spanish sentence without its final full stop; then things
    /// stand as `activado` tells.
    virtual std::expected<void, std::string> fijar(bool activado) = 0;
};

} // namespace ovanta
