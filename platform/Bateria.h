#pragma once

#include <functional>
#include <optional>

namespace ovanta {

/// The machine's own battery; several of them count as one.
struct EstadoBateria
{
    int porcentaje = 0;
    bool cargando = false;
    bool enCorriente = false;            ///< on mains
    std::optional<int> minutosRestantes; ///< until empty, at least 1
    std::optional<int> ciclos;
    std::optional<int> salud; ///< per cent of what it held when it was new, at most 100

    bool operator==(const EstadoBateria &) const = default;
};

/// The battery of the machine, never that of a mouse or a headset. Main thread; never blocks.
class Bateria
{
public:
    virtual ~Bateria() = default;

    /// Reads the battery and hands the result, nothing on a machine without one, to `listo` on the
    /// main thread: before it returns where that takes no time, else later. A reading that is asked
    /// for while another is on its way shares its result.
    virtual void leer(std::function<void(std::optional<EstadoBateria>)> listo) = 0;
};

} // namespace ovanta
