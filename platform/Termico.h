#pragma once

namespace ovanta {

/// How hot the machine is, by what it does about it. The numbers are those of a Mac's thermal state;
/// `desconocido` is any other.
enum class EstadoTermico { nominal = 0, fair = 1, serious = 2, critical = 3, desconocido = 4 };

/// The machine's temperature.
class Termico
{
public:
    virtual ~Termico() = default;

    /// The state now; `desconocido` where the machine tells nothing. Main thread; cheap.
    virtual EstadoTermico estado() = 0;
};

} // namespace ovanta
