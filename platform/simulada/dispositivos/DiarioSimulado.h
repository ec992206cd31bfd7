#pragma once

#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace ovanta {

/// What a simulated device saw, line by line in the order in which it happened. Any thread.
class DiarioSimulado
{
public:
    void anotar(std::string linea)
    {
        const std::lock_guard guardia{m_cerrojo};
        m_lineas.push_back(std::move(linea));
    }

    std::vector<std::string> lineas() const
    {
        const std::lock_guard guardia{m_cerrojo};
        return m_lineas;
    }

private:
    mutable std::mutex m_cerrojo;
    std::vector<std::string> m_lineas;
};

} // namespace ovanta
