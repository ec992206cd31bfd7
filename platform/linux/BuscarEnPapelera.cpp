#include "platform/linux/BuscarEnPapelera.h"

#include "core/ErrorSistema.h"
#include "core/LeerArchivo.h"
#include "platform/linux/InfoPapelera.h"

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <memory>
#include <optional>
#include <string_view>

namespace ovanta {

namespace {

using Listado = std::unique_ptr<DIR, decltype([](DIR *d) { ::closedir(d); })>;

Listado listar(int carpeta)
{
    // An O_PATH descriptor cannot be listed itself.
    const int legible = ::openat(carpeta, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (legible < 0) lanzarErrno(errno);
    Listado listado(::fdopendir(legible));
    if (!listado) {
        ::close(legible);
        lanzarErrno(ENOMEM);
    }
    return listado;
}

/// The info file, if it is a sane one.
std::optional<InfoPapelera> leerInfoDe(int infos, const std::string &archivo)
try {
    return leerInfo(leerArchivo(infos, archivo, maximoDeInfo, EnlaceFinal::rechazar));
} catch (const ErrorDeLectura &) {
    return std::nullopt;
}

} // namespace

bool buscarEnPapelera(const CarpetaPapelera &papelera, const std::string &rutaReal, Fecha desde)
{
    const std::string buscada = papelera.rutaEnInfo(rutaReal);
    const auto segundos = std::chrono::floor<std::chrono::seconds>(desde);
    const Listado listado = listar(papelera.infos.numero());
    for (std::size_t vistos = 0; vistos < maximoDeInfos; ++vistos) {
        const dirent *entrada = ::readdir(listado.get());
        if (entrada == nullptr) break;
        const std::string_view archivo = entrada->d_name;
        if (!archivo.ends_with(finDeInfo)) continue;
        const auto info = leerInfoDe(papelera.infos.numero(), std::string(archivo));
        if (!info || info->ruta != buscada || info->fecha < segundos) continue;
        const std::string nombre(archivo.substr(0, archivo.size() - finDeInfo.size()));
        if (::faccessat(papelera.archivos.numero(), nombre.c_str(), F_OK, AT_SYMLINK_NOFOLLOW) == 0)
            return true;
    }
    return false;
}

} // namespace ovanta
