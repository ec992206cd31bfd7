#include "platform/simulada/AccesoArchivosSimulado.h"

#include <fcntl.h>
#include <unistd.h>

namespace ovanta {

int AccesoArchivosSimulado::abrirEn(int carpeta, const char *nombre)
{
    return ::openat(carpeta, nombre, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
}

ssize_t AccesoArchivosSimulado::leer(int descriptor, void *destino, std::size_t bytes)
{
    return ::read(descriptor, destino, bytes);
}

} // namespace ovanta
