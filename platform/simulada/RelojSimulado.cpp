#include "platform/simulada/RelojSimulado.h"

#include <QTimer>
#include <utility>

namespace ovanta {

namespace {

class TemporizadorQt final : public Reloj::Temporizador
{
public:
    TemporizadorQt(std::chrono::milliseconds periodo, Qt::TimerType clase, bool unaVez,
                   std::function<void()> accion)
    {
        m_temporizador.setTimerType(clase);
        m_temporizador.setSingleShot(unaVez);
        m_temporizador.callOnTimeout(std::move(accion));
        m_temporizador.start(periodo);
    }

private:
    QTimer m_temporizador;
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
    return std::make_unique<TemporizadorQt>(periodo, holgado ? Qt::CoarseTimer : Qt::PreciseTimer, false,
                                            std::move(accion));
}

std::unique_ptr<Reloj::Temporizador> RelojSimulado::unaVez(std::chrono::milliseconds espera,
                                                           std::function<void()> accion)
{
    if (m_detenido) return m_manual.unaVez(espera, std::move(accion));
    return std::make_unique<TemporizadorQt>(espera, Qt::PreciseTimer, true, std::move(accion));
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
