#include "core/EscrituraAtomica.h"

#include "core/Descriptor.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ovanta {

namespace {

int resultado(int valor)
{
    return valor == 0 ? 0 : errno;
}

int llenar(int fd, std::string_view contenido)
{
    if (const int fallo = escribirTodo(fd, contenido)) return fallo;
    if (const int fallo = resultado(::fchmod(fd, S_IRUSR | S_IWUSR))) return fallo;
    return resultado(::fsync(fd));
}

/// Makes the new name itself outlast a power failure.
int sincronizarCarpeta(const std::string &ruta)
{
    const std::string carpeta = ruta.substr(0, ruta.rfind('/') + 1);
    const Descriptor fd{::open(carpeta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    return fd.abierto() ? resultado(::fsync(fd.numero())) : errno;
}

} // namespace

int escribirTodo(int fd, std::string_view contenido)
{
    while (!contenido.empty()) {
        const auto escritos = ::write(fd, contenido.data(), contenido.size());
        if (escritos < 0 && errno == EINTR) continue;
        if (escritos < 0) return errno;
        contenido.remove_prefix(static_cast<std::size_t>(escritos));
    }
    return 0;
}

int escribirAtomico(const std::string &ruta, std::string_view contenido)
{
    // A name that nobody can guess, made with O_EXCL and 0600.
    std::string temporal = ruta + ".XXXXXX";
    Descriptor fd{::mkostemp(temporal.data(), O_CLOEXEC)};
    if (!fd.abierto()) return errno;
    int fallo = llenar(fd.numero(), contenido);
    fd.cerrar();
    if (fallo == 0) fallo = resultado(::rename(temporal.c_str(), ruta.c_str()));
    if (fallo == 0) return sincronizarCarpeta(ruta);
    ::unlink(temporal.c_str());
    return fallo;
}

} // namespace ovanta
