#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace ovanta {

/// A thread for work that may hang for ever: the caller waits for a limited time only. While one piece of
/// work hangs, the next ones are refused at once; when it ends the thread serves again. A thread that
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
