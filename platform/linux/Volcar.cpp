#include "platform/linux/Volcar.h"

#include "core/ErrorSistema.h"

#include <cerrno>
#include <unistd.h>

namespace ovanta {

void volcar(int fd, std::string_view texto)
{
    while (!texto.empty()) {
        const ssize_t n = ::write(fd, texto.data(), texto.size());
        if (n < 0 && errno != EINTR) lanzarErrno(errno);
        if (n > 0) texto.remove_prefix(static_cast<std::size_t>(n));
    }
}

} // namespace ovanta
