#include "core/Ejecutar.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <sys/stat.h>
#include <unistd.h>

namespace ovanta {
namespace {

/// Names in a folder; nothing where it cannot be listed.
std::vector<std::string> entradasDe(const std::string &carpeta)
{
    std::vector<std::string> nombres;
    std::error_code error;
    for (std::filesystem::directory_iterator it(carpeta, error), fin; !error && it != fin;
         it.increment(error)) {
        nombres.push_back(it->path().filename().native());
    }
    return nombres;
}

} // namespace

bool esEjecutable(const std::string &ruta)
{
    if (!ruta.starts_with('/') || ruta.contains('\0')) return false;
    struct stat datos{};
    return ::stat(ruta.c_str(), &datos) == 0 && S_ISREG(datos.st_mode) && ::access(ruta.c_str(), X_OK) == 0;
}

std::optional<std::string> buscarBinario(std::string_view nombre, const std::string &hogar)
{
    const std::string versiones = hogar + "/.nvm/versions/node";
    const std::string sufijo = "/" + std::string(nombre);
    for (const std::string &carpeta : {std::string("/opt/homebrew/bin"), std::string("/usr/local/bin"),
                                       std::string("/usr/bin"), std::string("/bin"), versiones}) {
        if (esEjecutable(carpeta + sufijo)) return carpeta + sufijo;
    }

    std::vector<std::string> entradas = entradasDe(versiones);
    std::ranges::sort(entradas, std::greater{});
    for (const std::string &version : entradas) {
        const std::string ruta = versiones + "/" + version + "/bin" + sufijo;
        if (esEjecutable(ruta)) return ruta;
    }
    return std::nullopt;
}

} // namespace ovanta
