#include "platform/linux/SinEnlaces.h"

#include "core/Enlaces.h"
#include "core/ErrorSistema.h"
#include "core/Rutas.h"

#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/syscall.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace ovanta {

namespace {

constexpr int lugar = O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

/// The same as RESOLVE_NO_SYMLINKS, one component after the other.
Descriptor abrirPorComponentes(const std::string &ruta)
{
    Descriptor actual(::open("/", lugar));
    if (!actual.abierto()) lanzarErrno(errno);
    for (std::size_t inicio = 0; inicio < ruta.size();) {
        const std::size_t fin = std::min(ruta.find('/', inicio), ruta.size());
        if (fin > inicio) actual = abrirSubcarpeta(actual.numero(), ruta.substr(inicio, fin - inicio));
        inicio = fin + 1;
    }
    return actual;
}

} // namespace

Descriptor abrirCarpetaReal(const std::string &ruta)
{
    open_how como{};
    como.flags = lugar;
    como.resolve = RESOLVE_NO_SYMLINKS;
    const long fd = ::syscall(SYS_openat2, AT_FDCWD, ruta.c_str(), &como, sizeof como);
    if (fd >= 0) return Descriptor(static_cast<int>(fd));
    // Kernels before 5.6 don't know the call, some containers forbid it, and no call takes a long path.
    if (errno == ENOSYS || errno == EPERM || errno == ENAMETOOLONG) return abrirPorComponentes(ruta);
    lanzarErrno(errno);
}

CarpetaReal abrirSiguiendo(const std::string &ruta)
{
    try {
        // Most paths have no links, and looking for them costs more than the opening.
        if (estandarizar(ruta) == ruta) return {.ruta = ruta, .carpeta = abrirCarpetaReal(ruta)};
    } catch (const std::system_error &error) {
        if (error.code().value() != ELOOP && error.code().value() != ENOTDIR) throw;
    }
    const auto real = resolverEnlaces(ruta);
    if (!real) lanzarErrno(ENOENT);
    return {.ruta = *real, .carpeta = abrirCarpetaReal(*real)};
}

Descriptor abrirSubcarpeta(int carpeta, const std::string &nombre)
{
    Descriptor abierta(::openat(carpeta, nombre.c_str(), lugar));
    if (!abierta.abierto()) lanzarErrno(errno);
    return abierta;
}

struct stat estadoDe(int carpeta, const std::string &nombre)
{
    struct stat estado{};
    if (::fstatat(carpeta, nombre.c_str(), &estado, AT_SYMLINK_NOFOLLOW) != 0) lanzarErrno(errno);
    return estado;
}

struct stat estadoDe(int fd)
{
    struct stat estado{};
    if (::fstat(fd, &estado) != 0) lanzarErrno(errno);
    return estado;
}

Identidad identidadDe(const struct stat &estado)
{
    return {.dispositivo = estado.st_dev, .inodo = estado.st_ino, .tipo = estado.st_mode & S_IFMT};
}

} // namespace ovanta
