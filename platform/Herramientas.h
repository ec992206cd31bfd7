#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ovanta {

/// Outside tools, as `ejecutar` and `buscarBinario` in core/Ejecutar.h define them: same arguments,
/// same results, same exceptions. A seam of its own so that a simulated machine can script them.
class Herramientas
{
public:
    virtual ~Herramientas() = default;

    /// Blocking: background threads only.
    virtual std::string ejecutar(const std::string &binario, const std::vector<std::string> &args,
                                 double timeout, bool tolerarFallo) = 0;

    virtual std::optional<std::string> buscarBinario(std::string_view nombre) = 0;
};

} // namespace ovanta
