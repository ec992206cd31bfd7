#include "platform/linux/RelojLinux.h"

#include "core/qt/Temporizador.h"

namespace ovanta {

namespace {

struct TemporizadorQt final : Reloj::Temporizador
{
    explicit TemporizadorQt(std::unique_ptr<QTimer> corriendo) : timer(std::move(corriendo)) {}

    std::unique_ptr<QTimer> timer;
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
    return std::make_unique<TemporizadorQt>(
        empezarTemporizador(periodo, tipoDeTemporizador(periodo, tolerancia), false, std::move(accion)));
}

std::unique_ptr<Reloj::Temporizador> RelojLinux::unaVez(std::chrono::milliseconds espera,
                                                        std::function<void()> accion)
{
    // A coarse timer may also fire early.
    return std::make_unique<TemporizadorQt>(
        empezarTemporizador(espera, Qt::PreciseTimer, true, std::move(accion)));
}

} // namespace ovanta
