#pragma once

#include <atomic>

namespace ovanta {

/// A wish to stop that travels with an operation: the main thread raises it once, the stages in the
/// background look at it between steps. Any thread.
class BanderaCancelacion
{
public:
    void cancelar() noexcept { m_valor.store(true, std::memory_order_relaxed); }
    bool cancelada() const noexcept { return m_valor.load(std::memory_order_relaxed); }

private:
    std::atomic<bool> m_valor{false};
};

/// Whether there is a flag and it was raised.
inline bool cancelada(const BanderaCancelacion *bandera)
{
    return bandera && bandera->cancelada();
}

} // namespace ovanta
