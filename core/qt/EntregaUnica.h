#pragma once

#include "core/qt/SegundoPlano.h"

#include <QCoreApplication>
#include <QPointer>

namespace ovanta {

/// Runs `trabajo` in the background, under the terms of `enSegundoPlano`, and hands its result to `luego`
/// on the main thread, unless `destino` is gone by then. It wakes the main thread once, where a future
/// that is awaited wakes it for its start, its result and its end: for what goes on while the program
/// rests. The future given back ends with `trabajo`; nobody should await it.
template <typename F, typename G>
QFuture<void> entregarUnaVez(Prioridad prioridad, F trabajo, QObject *destino, G luego)
{
    auto fin = std::make_shared<QPromise<void>>();
    fin->start();
    QFuture<void> futuro = fin->future();
    detalle::reserva(prioridad).start([fin, trabajo = std::move(trabajo), vivo = QPointer{destino}, luego] {
        auto resultado = std::make_shared<std::invoke_result_t<F &>>(trabajo());
        auto entrega = [vivo, resultado, luego] {
            if (vivo) luego(*resultado);
        };
        QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(entrega), Qt::QueuedConnection);
        fin->finish();
    });
    return futuro;
}

} // namespace ovanta
