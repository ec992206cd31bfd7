#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace ovanta {

/// Why a file could not be read. `what()` is Spanish, one sentence without its final full stop, and
/// names no path: the caller puts its own words before it.
class ErrorDeLectura : public std::runtime_error
{
public:
    ErrorDeLectura(int codigo, const std::string &descripcion)
        : std::runtime_error(descripcion), m_codigo(codigo)
    {
    }

    /// The `errno` value that fits: ENOENT where there is no file, EFBIG above the limit, ELOOP for
    /// a link that was not to be followed, EINVAL for anything that is not a regular file.
    int codigo() const noexcept { return m_codigo; }

private:
    int m_codigo;
};

enum class EnlaceFinal { seguir, rechazar };

/// The bytes of a whole regular file of at most `limite` bytes. Links on the way are always followed,
/// one at the end as `enlace` says. Anything but a regular file is refused without reading from it,
/// so a FIFO or a terminal never blocks. A file that grows while it is read is refused once it
/// passes the limit; memory use stays near the file's size.
///
/// Throws `ErrorDeLectura`. Blocking; any thread.
std::string leerArchivo(const std::string &ruta, std::uint64_t limite, EnlaceFinal enlace);

/// The same for `ruta` seen from the open folder `carpeta`, unless it is absolute.
std::string leerArchivo(int carpeta, const std::string &ruta, std::uint64_t limite, EnlaceFinal enlace);

} // namespace ovanta
