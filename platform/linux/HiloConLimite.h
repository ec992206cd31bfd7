#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace ovanta {

/// A thread for work that may hang for ever: the caller waits for a limited time only, its turn included.
/// Once a piece of work outlasted its limit the next ones are refused at once, until it ends. A thread that
/// still hangs at the end of this object is left behind and ends with its work.
class HiloConLimite
{
public:
    HiloConLimite();
    HiloConLimite(const HiloConLimite &) = delete;
    HiloConLimite &operator=(const HiloConLimite &) = delete;
    ~HiloConLimite();

    /// Runs `trabajo` there; whether it ended in time. It must own all that it touches, and not throw.
    /// Any thread.
    bool correr(std::function<void()> trabajo, std::chrono::milliseconds limite);

private:
    struct Estado;
    std::shared_ptr<Estado> m_estado;
};

} // namespace ovanta
