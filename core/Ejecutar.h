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
    static ShellError noEncontrado(const std::string &binario);
    /// The tool ended with `codigo` (128 + n where signal n ended it) and said `salida`.
    static ShellError fallo(int codigo, const std::string &salida);
    /// The tool was stopped after `segundos`; the text names the whole ones.
    static ShellError agotado(const std::string &comando, double segundos);

    Caso caso() const noexcept { return m_caso; }
    int codigo() const noexcept { return m_codigo; }
    const char *what() const noexcept override { return m_descripcion.c_str(); }

private:
    ShellError(Caso caso, int codigo, std::string descripcion);

    Caso m_caso;
    int m_codigo = 0;
    std::string m_descripcion;
};

/// Whether `ruta` is absolute and leads to a regular file that this process may execute.
bool esEjecutable(const std::string &ruta);

/// Runs an outside tool and returns its standard output, which must be UTF-8 (else it counts as
/// empty). Blocks the calling thread, at worst for `timeout` + 10 seconds: background threads only.
/// Any number of calls may run at once; they share nothing.
///
/// The tool gets this process's environment with PATH led by its own folder, its own process
/// group, no inherited descriptor but standard input, and both output pipes are drained while it
/// runs. All it prints is kept in memory. At the limit its group gets SIGTERM, 3 s later SIGKILL;
/// none of the group survives this. A tool that ended by itself keeps the children that it left
/// behind, but they can hold the caller for 5 s at most. With `tolerarFallo` a failing tool that
/// printed something counts as successful. A `timeout` that is negative or no number counts as 0.
///
/// Throws `ShellError`; `std::system_error` where the system refuses the launch, and with
/// `operation_canceled` once `detenerHerramientas` was called.
std::string ejecutar(const std::string &binario, const std::vector<std::string> &args, double timeout,
                     bool tolerarFallo);

/// Where a tool lies: the fixed folders in order, then the node versions in `hogar` in descending plain
/// text order (so that v9 comes before v20).
std::optional<std::string> buscarBinario(std::string_view nombre, const std::string &hogar);

/// Kills every tool that `ejecutar` has running, with its whole group, ends the calls that wait for
/// them and makes all later ones fail at once. For the end of the program: no tool outlives it. Final.
void detenerHerramientas();

} // namespace ovanta
