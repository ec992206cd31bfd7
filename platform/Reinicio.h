#pragma once

namespace ovanta {

/// Asks the session to restart the machine. The system shows its own confirmation and applications may
/// save their work; nothing is forced here.
class Reinicio
{
public:
    virtual ~Reinicio() = default;

    /// Failures are ignored. Blocking, for up to 30 seconds; background threads only.
    virtual void pedir() = 0;
};

} // namespace ovanta
