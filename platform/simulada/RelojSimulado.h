#pragma once

#include "platform/Reloj.h"
#include "platform/simulada/RelojManual.h"

#include <optional>

namespace ovanta {

/// A clock that can be moved. It starts as the machine's own clock; after `detener` it stands still
/// and only `avanzar` moves it.
class RelojSimulado final : public Reloj
{
public:
    RelojSimulado() = default;
    /// Where `detenido` is set the clock stands still at that moment from the first.
    explicit RelojSimulado(std::optional<Fecha> detenido)
    {
        if (detenido) detener(*detenido);
    }

    Fecha ahora() const override;
    std::unique_ptr<Temporizador> cada(std::chrono::milliseconds periodo,
                                       std::chrono::milliseconds tolerancia,
                                       std::function<void()> accion) override;
    std::unique_ptr<Temporizador> unaVez(std::chrono::milliseconds espera,
                                         std::function<void()> accion) override;

    /// Stops the clock at `fecha`. Timers that run already go on with the machine's clock, so this
    /// comes before anybody asks for one.
    void detener(Fecha fecha);

    /// Moves the clock forward. A stopped clock fires every timer that falls due on the way; a
    /// running one only tells another time, as after a change of the date.
    void avanzar(std::chrono::microseconds cuanto);

private:
    std::atomic<bool> m_detenido = false;
    std::atomic<std::chrono::microseconds::rep> m_adelanto = 0;
    RelojManual m_manual;
};

} // namespace ovanta
