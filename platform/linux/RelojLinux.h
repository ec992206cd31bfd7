#pragma once

#include "platform/Reloj.h"

#include <Qt>

namespace ovanta {

/// The system's clock and the timers of the main thread's event loop.
class RelojLinux final : public Reloj
{
public:
    Fecha ahora() const override;
    std::unique_ptr<Temporizador> cada(std::chrono::milliseconds periodo,
                                       std::chrono::milliseconds tolerancia,
                                       std::function<void()> accion) override;
    std::unique_ptr<Temporizador> unaVez(std::chrono::milliseconds espera,
                                         std::function<void()> accion) override;
};

/// The least exact timer that stays within `tolerancia`: whole seconds where half a second does not
/// matter, five per cent where that is allowed, else to the millisecond.
Qt::TimerType tipoDeTemporizador(std::chrono::milliseconds periodo, std::chrono::milliseconds tolerancia);

} // namespace ovanta
