#pragma once

#include <algorithm>
#include <atomic>
#include <chrono>
#include <memory>

namespace ovanta {

/// How long a piece of blocking work may take in all, on the monotonic clock, and a way to give it up from
/// another thread. Copies share the giving up.
class Plazo
{
public:
    using Milisegundos = std::chrono::milliseconds;

    /// How soon after `rendir` a blocked step ends.
    static constexpr Milisegundos pulso{100};

    explicit Plazo(Milisegundos total) : m_fin(std::chrono::steady_clock::now() + total) {}

    /// Ends every step under this and all its copies. Any thread.
    void rendir() const { *m_rendido = true; }
    bool rendido() const { return *m_rendido; }

    bool vencido() const { return rendido() || restante() == Milisegundos::zero(); }
    /// Zero once it is over.
    Milisegundos restante() const
    {
        const auto queda = m_fin - std::chrono::steady_clock::now();
        return std::max(Milisegundos::zero(), std::chrono::ceil<Milisegundos>(queda));
    }

    /// The same, but over after `total` at the latest; given up together with this.
    Plazo acotado(Milisegundos total) const
    {
        Plazo corto = *this;
        corto.m_fin = std::min(m_fin, std::chrono::steady_clock::now() + total);
        return corto;
    }

private:
    std::chrono::steady_clock::time_point m_fin;
    std::shared_ptr<std::atomic<bool>> m_rendido = std::make_shared<std::atomic<bool>>(false);
};

} // namespace ovanta
