#include "core/qt/SegundoPlano.h"

#include <QThread>
#include <utility>

namespace ovanta {

namespace {

/// Tools block their thread while they run, so there are more threads than the work itself needs.
constexpr int hilosPorReserva = 8;

/// As often may a disk hang before the next analysis has to wait.
constexpr int hilosQuePuedenColgarse = 64;

/// A thread that is done goes at once: waiting for more it would keep a stack and a heap arena, and wake
/// the processor once more to end. The program rests most of the time.
constexpr int caducidadMs = 0;

struct Reserva
{
    QThreadPool hilos;

    Reserva(const char *nombre, QThread::Priority prioridad, int cuantos = hilosPorReserva)
    {
        hilos.setObjectName(QLatin1String(nombre));
        hilos.setMaxThreadCount(cuantos);
        hilos.setExpiryTimeout(caducidadMs);
        hilos.setThreadPriority(prioridad);
    }
};

} // namespace

QThreadPool &detalle::reserva(Prioridad prioridad)
{
    static Reserva utilidad("utilidad", QThread::LowPriority);
    static Reserva usuario("usuario", QThread::NormalPriority);
    static Reserva colgable("analisis", QThread::LowPriority, hilosQuePuedenColgarse);
    switch (prioridad) {
    case Prioridad::Utilidad:
        return utilidad.hilos;
    case Prioridad::Usuario:
        return usuario.hilos;
    case Prioridad::PuedeColgarse:
        return colgable.hilos;
    }
    std::unreachable();
}

bool esperarSegundoPlano(int milisegundos)
{
    bool todas = true;
    for (const Prioridad prioridad : {Prioridad::Utilidad, Prioridad::Usuario, Prioridad::PuedeColgarse})
        todas = detalle::reserva(prioridad).waitForDone(milisegundos / 3) && todas;
    return todas;
}

} // namespace ovanta
