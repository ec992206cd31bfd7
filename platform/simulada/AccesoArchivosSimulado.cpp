#include "platform/simulada/AccesoArchivosSimulado.h"

#include <fcntl.h>
#include <unistd.h>

namespace ovanta {

int AccesoArchivosSimulado::abrir(const char *ruta)
{
    return ::open(ruta, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
}

ssize_t AccesoArchivosSimulado::leer(int descriptor, void *destino, std::size_t bytes)
{
    return ::read(descriptor, destino, bytes);
}

} // namespace ovanta
