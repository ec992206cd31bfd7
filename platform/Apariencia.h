#pragma once

#include <functional>

namespace ovanta {

/// How the user wants programs to look. Main thread.
class Apariencia
{
public:
    struct Estado
    {
        bool oscuro = false;
        bool altoContraste = false;
        bool movimientoReducido = false;

        bool operator==(const Estado &) const = default;
    };

    virtual ~Apariencia() = default;

    virtual Estado actual() const = 0;

    /// Whether parts of a window may let through what lies below: something blends the windows now.
    virtual bool transparencia() const { return false; }

    /// Calls `accion` when `actual` changed. One listener a call; kept for the life of the process.
    virtual void alCambiar(std::function<void()> accion) = 0;
};

} // namespace ovanta
