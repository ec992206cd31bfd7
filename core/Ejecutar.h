#pragma once

#include <exception>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ovanta {

/// Why a tool gave no result. `what()` is the text for the user.
class ShellError : public std::exception
{
public:
    enum class Caso { noEncontrado, fallo, agotado };

    /// «binario» is no executable file; nothing ran.
    static ShellError noEncontrado(std::string binario);
    /// The tool ended with `codigo` (128 + n where signal n ended it) and said `salida`.
    static ShellError fallo(int codigo, std::string salida);
    /// The tool was stopped after `segundos` whole seconds.
    static ShellError agotado(std::string comando, long segundos);

    Caso caso() const noexcept { return m_caso; }
    int codigo() const noexcept { return m_codigo; }
    const char *what() const noexcept override { return m_descripcion.c_str(); }

private:
    ShellError(Caso caso, int codigo, std::string descripcion);

    Caso m_caso;
    int m_codigo = 0;
    std::string m_descripcion;
};

/// Runs an outside tool and returns its standard output, which must be UTF-8 (else it counts as
/// empty). Blocks the calling thread, at worst for `timeout` + 10 seconds: background threads only.
/// Any number of calls may run at once; they share nothing.
///
/// The tool gets this process's environment with PATH led by its own folder, its own process
/// group, no inherited descriptor but standard input, and both output pipes are drained while it
/// runs. At the limit its group gets SIGTERM, 3 s later SIGKILL. With `tolerarFallo` a failing
/// tool that printed something counts as successful.
///
/// Throws `ShellError`, or `std::system_error` where the launch itself was refused.
std::string ejecutar(const std::string &binario, const std::vector<std::string> &args, double timeout,
                     bool tolerarFallo);

/// Where a tool lies: the fixed folders in order, then the node versions in `hogar`.
std::optional<std::string> buscarBinario(std::string_view nombre, const std::string &hogar);

/// Kills every tool that `ejecutar` has running, with its whole group, and makes all later calls
/// fail at once. For the end of the program: afterwards no tool outlives it.
void detenerHerramientas();

} // namespace ovanta
