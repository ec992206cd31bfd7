#include "core/LeerArchivo.h"

#include "core/Descriptor.h"
#include "core/ErrorSistema.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ovanta {

namespace {

[[noreturn]] void fallar(int codigo)
{
    throw ErrorDeLectura(codigo, textoErrno(codigo));
}

[[noreturn]] void rechazarPorGrande(std::uint64_t limite)
{
    throw ErrorDeLectura(EFBIG, "el archivo pasa del límite de " + std::to_string(limite) + " bytes");
}

Descriptor abrir(int carpeta, const std::string &ruta, EnlaceFinal enlace)
{
    // The system would stop at the zero and open another file.
    if (ruta.find('\0') != std::string::npos) fallar(ENOENT);
    // Without O_NONBLOCK, opening a FIFO waits for its writer.
    const int modo =
        O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY | (enlace == EnlaceFinal::rechazar ? O_NOFOLLOW : 0);
    int fd = -1;
    do {
        fd = ::openat(carpeta, ruta.c_str(), modo);
    } while (fd < 0 && errno == EINTR);
    if (fd < 0) fallar(errno);
    return Descriptor(fd);
}

/// The size that the file claims; it may still change, and some file systems claim 0.
std::uint64_t comprobar(int fd, std::uint64_t limite)
{
    struct stat datos = {};
    if (::fstat(fd, &datos) != 0) fallar(errno);
    if (!S_ISREG(datos.st_mode)) throw ErrorDeLectura(EINVAL, "no es un archivo corriente");
    const auto tamano = static_cast<std::uint64_t>(std::max<off_t>(datos.st_size, 0));
    if (tamano > limite) rechazarPorGrande(limite);
    return tamano;
}

/// Reads up to `cuanto` bytes onto the end of `texto`; false at the end of the file.
bool anadirTrozo(int fd, std::string &texto, std::size_t cuanto)
{
    const std::size_t antes = texto.size();
    texto.resize(antes + cuanto);
    ssize_t leidos = -1;
    do {
        leidos = ::read(fd, texto.data() + antes, cuanto);
    } while (leidos < 0 && errno == EINTR);
    if (leidos < 0) fallar(errno);
    texto.resize(antes + static_cast<std::size_t>(leidos));
    return leidos > 0;
}

} // namespace

std::string leerArchivo(const std::string &ruta, std::uint64_t limite, EnlaceFinal enlace)
{
    return leerArchivo(AT_FDCWD, ruta, limite, enlace);
}

std::string leerArchivo(int carpeta, const std::string &ruta, std::uint64_t limite, EnlaceFinal enlace)
{
    constexpr std::size_t trozo = 64 * 1024;
    const Descriptor fd = abrir(carpeta, ruta, enlace);
    std::string texto;
    texto.reserve(comprobar(fd.numero(), limite) + trozo);
    while (anadirTrozo(fd.numero(), texto, trozo)) {
        if (texto.size() > limite) rechazarPorGrande(limite);
    }
    return texto;
}

} // namespace ovanta
