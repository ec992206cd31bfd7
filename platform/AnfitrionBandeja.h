#pragma once

#include <functional>

namespace ovanta {

/// Whatever shows status icons on this desktop. Main thread.
class AnfitrionBandeja
{
public:
    virtual ~AnfitrionBandeja() = default;

    /// Whether a host for status icons is there now.
    virtual bool presente() const = 0;

    /// Whether it shows a picture that is wider than high as it is. Most hosts make it a square.
    virtual bool muestraAnchas() const { return false; }

    /// Calls `accion` when a host appeared or went away, for the life of the process.
    virtual void alCambiar(std::function<void()> accion) = 0;
};

} // namespace ovanta
