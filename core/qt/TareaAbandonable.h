#pragma once

#include "core/qt/SegundoPlano.h"

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace ovanta {

/// A background task that its waiter can give up: its future then ends at once with nothing, and
/// what the task brings later is dropped.
template <typename R>
struct TareaAbandonable
{
    QFuture<std::optional<R>> futuro;
    std::function<void()> abandonar; ///< any thread; nothing happens once the task has ended
};

/// Starts `trabajo`, under the terms of `enSegundoPlano`, where it may hang.
template <typename F>
auto abandonable(F trabajo) -> TareaAbandonable<std::invoke_result_t<F &>>
{
    using R = std::invoke_result_t<F &>;
    struct Entrega
    {
        QPromise<std::optional<R>> promesa;
        std::atomic<bool> hecha{false};

        void entregar(std::optional<R> resultado)
        {
            if (hecha.exchange(true)) return;
            promesa.addResult(std::move(resultado));
            promesa.finish();
        }
    };
    auto entrega = std::make_shared<Entrega>();
    entrega->promesa.start();
    auto futuro = entrega->promesa.future();
    auto todo = [entrega, trabajo = std::move(trabajo)]() mutable { entrega->entregar(trabajo()); };
    detalle::reserva(Prioridad::PuedeColgarse).start(std::move(todo));
    return {futuro, [entrega] { entrega->entregar(std::nullopt); }};
}

} // namespace ovanta
