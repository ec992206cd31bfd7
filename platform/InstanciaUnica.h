#pragma once

#include <functional>

namespace ovanta {

/// One running copy of the program per user session. Main thread.
class InstanciaUnica
{
public:
    virtual ~InstanciaUnica() = default;

    /// True where this process is now the one instance; `alActivar` is then called whenever another
    /// copy is started. False where one runs already: it has been told to come to the front and this
    /// process should end.
    virtual bool adquirir(std::function<void()> alActivar) = 0;

    /// Whether the session started this process by itself (at login, or its bus for a service): then
    /// no window opens until somebody asks for one.
    virtual bool iniciadaPorLaSesion() const = 0;
};

} // namespace ovanta
