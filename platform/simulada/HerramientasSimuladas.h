#pragma once

#include "platform/Herramientas.h"
#include "platform/simulada/RegistroMutaciones.h"

#include <functional>
#include <map>
#include <mutex>

namespace ovanta {

/// Tools by script. `du` and `find` only read, so they run for real on the synthetic home. Every
/// other tool is absent until it is given a script; the simulated Mac gives `xcrun` its own.
class HerramientasSimuladas final : public Herramientas
{
public:
    /// Answers a call; throws what `ejecutar` would throw. Called on the caller's thread.
    using Guion = std::function<std::string(const std::vector<std::string> &args)>;

    explicit HerramientasSimuladas(RegistroMutaciones &registro) : m_registro(registro) {}

    /// From now on the tool called `nombre` (without folder) exists and answers by `guion`.
    void programar(std::string nombre, Guion guion);

    std::string ejecutar(const std::string &binario, const std::vector<std::string> &args, double timeout,
                         bool tolerarFallo) override;
    std::optional<std::string> buscarBinario(std::string_view nombre) override;

private:
    Guion guionDe(const std::string &nombre) const;

    RegistroMutaciones &m_registro;
    mutable std::mutex m_cerrojo;
    std::map<std::string, Guion, std::less<>> m_guiones;
};

} // namespace ovanta
