#pragma once

#include <functional>

namespace ovanta {

/// Sleep of the machine.
class Suspension
{
public:
    virtual ~Suspension() = default;

    /// Calls `accion` on the main thread after every wake, for the life of the process.
    virtual void alDespertar(std::function<void()> accion) = 0;
};

} // namespace ovanta
