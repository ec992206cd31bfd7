#include "core/SoltarConexiones.h"

#include <algorithm>
#include <sys/socket.h>
#include <unistd.h>

namespace ovanta {

void soltarConexiones()
{
    // Where the limit is huge nobody comes near it.
    const long tope = std::min(::sysconf(_SC_OPEN_MAX), 65536L);
    for (int numero = STDERR_FILENO + 1; numero < tope; ++numero) {
        // Unlike fstat(2), this asks no file system what kind of file it is; and unlike close(2), the
        // other side hears of it though a thread still has the file in use.
        int tipo = 0;
        socklen_t largo = sizeof tipo;
        if (::getsockopt(numero, SOL_SOCKET, SO_TYPE, &tipo, &largo) == 0) ::shutdown(numero, SHUT_RDWR);
    }
}

} // namespace ovanta
