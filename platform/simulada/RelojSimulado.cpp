#include "platform/simulada/RelojSimulado.h"

#include "core/qt/Temporizador.h"

#include <utility>

namespace ovanta {

namespace {

struct TemporizadorQt final : Reloj::Temporizador
{
    explicit TemporizadorQt(std::unique_ptr<QTimer> corriendo) : timer(std::move(corriendo)) {}

    std::unique_ptr<QTimer> timer;
};

} // namespace

Fecha RelojSimulado::ahora() const
{
    if (m_detenido) return m_manual.ahora();
    return std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now()) +
           std::chrono::microseconds(m_adelanto);
}

std::unique_ptr<Reloj::Temporizador> RelojSimulado::cada(std::chrono::milliseconds periodo,
                                                         std::chrono::milliseconds tolerancia,
                                                         std::function<void()> accion)
{
    if (m_detenido) return m_manual.cada(periodo, tolerancia, std::move(accion));
    // Qt lets a coarse timer be up to 5 % off.
    const bool holgado = tolerancia * 20 >= periodo;
    return std::make_unique<TemporizadorQt>(
        empezarTemporizador(periodo, holgado ? Qt::CoarseTimer : Qt::PreciseTimer, false, std::move(accion)));
}

std::unique_ptr<Reloj::Temporizador> RelojSimulado::unaVez(std::chrono::milliseconds espera,
                                                           std::function<void()> accion)
{
    if (m_detenido) return m_manual.unaVez(espera, std::move(accion));
    return std::make_unique<TemporizadorQt>(
        empezarTemporizador(espera, Qt::PreciseTimer, true, std::move(accion)));
}

void RelojSimulado::detener(Fecha fecha)
{
    m_manual.fijar(fecha);
    m_detenido = true;
}

void RelojSimulado::avanzar(std::chrono::microseconds cuanto)
{
    if (m_detenido)
        m_manual.avanzar(cuanto);
    else
        m_adelanto += cuanto.count();
}

} // namespace ovanta
