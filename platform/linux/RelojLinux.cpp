#include "platform/linux/RelojLinux.h"

#include <QTimer>

namespace ovanta {

namespace {

class TemporizadorQt final : public Reloj::Temporizador
{
public:
    TemporizadorQt(std::chrono::milliseconds periodo, Qt::TimerType tipo, bool unaVez,
                   std::function<void()> accion)
    {
        m_timer.setTimerType(tipo);
        m_timer.setSingleShot(unaVez);
        m_timer.callOnTimeout(std::move(accion));
        m_timer.start(periodo);
    }

private:
    QTimer m_timer;
};

} // namespace

Qt::TimerType tipoDeTemporizador(std::chrono::milliseconds periodo, std::chrono::milliseconds tolerancia)
{
    using namespace std::chrono_literals;
    if (periodo >= 1s && periodo % 1s == 0ms && tolerancia >= 500ms) return Qt::VeryCoarseTimer;
    if (tolerancia * 20 >= periodo) return Qt::CoarseTimer;
    return Qt::PreciseTimer;
}

Fecha RelojLinux::ahora() const
{
    return std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now());
}

std::unique_ptr<Reloj::Temporizador> RelojLinux::cada(std::chrono::milliseconds periodo,
                                                      std::chrono::milliseconds tolerancia,
                                                      std::function<void()> accion)
{
    return std::make_unique<TemporizadorQt>(periodo, tipoDeTemporizador(periodo, tolerancia), false,
                                            std::move(accion));
}

std::unique_ptr<Reloj::Temporizador> RelojLinux::unaVez(std::chrono::milliseconds espera,
                                                        std::function<void()> accion)
{
    // A coarse timer may also fire early.
    return std::make_unique<TemporizadorQt>(espera, Qt::PreciseTimer, true, std::move(accion));
}

} // namespace ovanta
