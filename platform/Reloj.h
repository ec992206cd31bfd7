#pragma once

#include "core/Fecha.h"

#include <chrono>
#include <functional>
#include <memory>

namespace ovanta {

/// Civil time and repeating timers. `ahora` may be called from any thread; timers belong to the
/// main thread and call back there.
class Reloj
{
public:
    /// A running timer; destroying it stops it.
    class Temporizador
    {
    public:
        virtual ~Temporizador() = default;
    };

    virtual ~Reloj() = default;

    virtual Fecha ahora() const = 0;

    /// Calls `accion` every `periodo`, each time up to `tolerancia` late so that the machine can
    /// wake once for many timers.
    virtual std::unique_ptr<Temporizador> cada(std::chrono::milliseconds periodo,
                                               std::chrono::milliseconds tolerancia,
                                               std::function<void()> accion) = 0;

    /// Calls `accion` once after `espera`.
    virtual std::unique_ptr<Temporizador> unaVez(std::chrono::milliseconds espera,
                                                 std::function<void()> accion) = 0;
};

} // namespace ovanta
