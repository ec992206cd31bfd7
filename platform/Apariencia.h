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

    /// Calls `accion` when `actual` changed. One listener a call; kept for the life of the process.
    virtual void alCambiar(std::function<void()> accion) = 0;
};

} // namespace ovanta
