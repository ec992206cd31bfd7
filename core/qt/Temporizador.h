#pragma once

#include <QTimer>
#include <chrono>
#include <functional>
#include <memory>

namespace ovanta {

/// A running timer of the main thread's event loop; destroying it stops it.
inline std::unique_ptr<QTimer> empezarTemporizador(std::chrono::milliseconds periodo, Qt::TimerType tipo,
                                                   bool unaVez, std::function<void()> accion)
{
    auto temporizador = std::make_unique<QTimer>();
    temporizador->setTimerType(tipo);
    temporizador->setSingleShot(unaVez);
    temporizador->callOnTimeout(std::move(accion));
    temporizador->start(periodo);
    return temporizador;
}

} // namespace ovanta
