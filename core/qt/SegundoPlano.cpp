#include "core/qt/SegundoPlano.h"

#include <QThread>

namespace ovanta {

namespace {

/// Tools block their thread while they run, so there are more threads than the work itself needs.
constexpr int hilosPorReserva = 8;

/// A thread that is done goes at once: waiting for more it would keep a stack and a heap arena, and wake
/// the processor once more to end. The program rests most of the time.
constexpr int caducidadMs = 0;

struct Reserva
{
    QThreadPool hilos;

    Reserva(const char *nombre, QThread::Priority prioridad)
    {
        hilos.setObjectName(QLatin1String(nombre));
        hilos.setMaxThreadCount(hilosPorReserva);
        hilos.setExpiryTimeout(caducidadMs);
        hilos.setThreadPriority(prioridad);
    }
};

} // namespace

QThreadPool &detalle::reserva(Prioridad prioridad)
{
    static Reserva utilidad("utilidad", QThread::LowPriority);
    static Reserva usuario("usuario", QThread::NormalPriority);
    return prioridad == Prioridad::Utilidad ? utilidad.hilos : usuario.hilos;
}

bool esperarSegundoPlano(int milisegundos)
{
    const bool utilidad = detalle::reserva(Prioridad::Utilidad).waitForDone(milisegundos / 2);
    const bool usuario = detalle::reserva(Prioridad::Usuario).waitForDone(milisegundos / 2);
    return utilidad && usuario;
}

} // namespace ovanta
