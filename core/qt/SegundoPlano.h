#pragma once

#include <QFuture>
#include <QPromise>
#include <QThreadPool>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

namespace ovanta {

/// How urgent a background task is. `Utilidad` runs at a low thread priority and never keeps more
/// than a few cores busy; `Usuario` is for work that somebody is waiting for. `PuedeColgarse` is a
/// `Utilidad` that reads the user's own folders, where a dead disk may hold its thread for ever: it has
/// threads of its own, so that nothing else waits behind it.
enum class Prioridad { Utilidad, Usuario, PuedeColgarse };

namespace detalle {
QThreadPool &reserva(Prioridad prioridad);
}

/// Runs `trabajo` on a background thread and gives its result as a future that a coroutine can
/// `co_await` on the thread it started from. `trabajo` must own all that it touches and must not
/// throw: a refusal travels as `std::expected`. Name the callable and the future before awaiting.
template <typename F>
auto enSegundoPlano(Prioridad prioridad, F trabajo) -> QFuture<std::invoke_result_t<F &>>
{
    using Resultado = std::invoke_result_t<F &>;
    auto promesa = std::make_shared<QPromise<Resultado>>();
    QFuture<Resultado> futuro = promesa->future();
    detalle::reserva(prioridad).start([promesa, trabajo = std::move(trabajo)]() mutable {
        promesa->start();
        if constexpr (std::is_void_v<Resultado>)
            trabajo();
        else
            promesa->addResult(trabajo());
        promesa->finish();
    });
    return futuro;
}

/// Waits for all background tasks to end, at most about `milisegundos`; tells whether they did. For
/// the end of the program, after the tools were stopped.
bool esperarSegundoPlano(int milisegundos);

} // namespace ovanta
