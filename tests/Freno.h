#pragma once

#include <atomic>
#include <functional>
#include <future>
#include <memory>

namespace ovanta::pruebas {

/// Holds up a thread of the program at a place of the test's choice until it is let go, at the latest
/// when this goes.
class Freno
{
public:
    Freno() = default;
    ~Freno() { soltar(); }
    Freno(const Freno &) = delete;
    Freno &operator=(const Freno &) = delete;

    /// What the thread calls at that place. Any thread, any number of times.
    std::function<void()> aqui() const
    {
        return [estado = m_estado] {
            estado->llegado = true;
            estado->fin.wait();
        };
    }
    /// A thread stands there or has stood there.
    bool llegado() const { return m_estado->llegado; }
    void soltar()
    {
        if (!m_estado->suelto.exchange(true)) m_estado->promesa.set_value();
    }

private:
    struct Estado
    {
        std::promise<void> promesa;
        std::shared_future<void> fin{promesa.get_future()};
        std::atomic<bool> llegado{false};
        std::atomic<bool> suelto{false};
    };
    std::shared_ptr<Estado> m_estado = std::make_shared<Estado>();
};

} // namespace ovanta::pruebas
