#pragma once

#include <cstddef>
#include <cstdint>
#include <sys/stat.h>
#include <sys/types.h>

namespace ovanta {

/// How an analysis reads the user's files: without leaving a trace on them and without waking what
/// should sleep. A seam of its own so that a test can make any read fail. Any thread.
class AccesoArchivos
{
public:
    virtual ~AccesoArchivos() = default;

    /// Opens a regular file, and nothing else, for reading, its access time left alone where that can be.
    /// Never follows a final link, never waits for the other end of a pipe. -1 with `errno` on failure.
    /// `nombre` is a name in the open folder, or any absolute path.
    virtual int abrirEn(int carpeta, const char *nombre) = 0;
    int abrir(const char *ruta) { return abrirEn(-1, ruta); }

    /// As read(2).
    virtual ssize_t leer(int descriptor, void *destino, std::size_t bytes) = 0;

    /// Tells the system that the first `bytes` will be read soon.
    virtual void anticipar(int descriptor, std::uint64_t bytes) = 0;

    /// How many bytes of an open file lie in blocks that it shares with another (a clone, a snapshot);
    /// 0 where the file system does not tell.
    virtual std::uint64_t bytesCompartidos(int descriptor) = 0;

    /// Whether the open folder belongs to a file system that holds nobody's files (/proc and its like)
    /// or that mounts something when it is touched.
    virtual bool esVirtual(int carpeta) = 0;

    /// Whether a file is only the placeholder of one that lies in a cloud: reading it would fetch it.
    virtual bool estaEnLaNube(const struct stat &atributos) = 0;
};

} // namespace ovanta
