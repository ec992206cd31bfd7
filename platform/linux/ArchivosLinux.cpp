#include "platform/linux/ArchivosLinux.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace ovanta {

std::optional<Fecha> ArchivosLinux::creado(const std::string &ruta)
{
    struct statx ficha = {};
    if (::statx(AT_FDCWD, ruta.c_str(), AT_SYMLINK_NOFOLLOW, STATX_BTIME, &ficha) != 0) return std::nullopt;
    if ((ficha.stx_mask & STATX_BTIME) == 0) return std::nullopt;
    const auto fraccion = std::chrono::nanoseconds(ficha.stx_btime.tv_nsec);
    return Fecha(std::chrono::seconds(ficha.stx_btime.tv_sec)) +
           std::chrono::floor<Fecha::duration>(fraccion);
}

} // namespace ovanta
