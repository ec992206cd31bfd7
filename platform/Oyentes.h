#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace ovanta {

/// Those who want to hear of a change, for the life of the process. Main thread.
class Oyentes
{
public:
    void agregar(std::function<void()> accion) { m_acciones.push_back(std::move(accion)); }

    /// Calls all of them. One that is added meanwhile is called from the next time on.
    void avisar() const
    {
        for (const auto &accion : std::vector(m_acciones))
            accion();
    }

private:
    std::vector<std::function<void()>> m_acciones;
};

} // namespace ovanta
