#include "platform/simulada/ArchivosSimulados.h"

#include <sys/stat.h>

namespace ovanta {

std::optional<Fecha> ArchivosSimulados::creado(const std::string &ruta)
{
    struct stat ficha = {};
    if (::lstat(ruta.c_str(), &ficha) != 0) return std::nullopt;
    const auto fraccion = std::chrono::nanoseconds(ficha.st_mtim.tv_nsec);
    return Fecha(std::chrono::seconds(ficha.st_mtim.tv_sec)) + std::chrono::floor<Fecha::duration>(fraccion);
}

} // namespace ovanta
