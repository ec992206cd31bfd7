#include "platform/linux/EntradasDeCarpeta.h"

#include <algorithm>
#include <filesystem>

namespace ovanta {

std::vector<std::string> entradasDeCarpeta(const std::string &carpeta, std::string_view principio)
{
    std::vector<std::string> nombres;
    std::error_code error;
    for (std::filesystem::directory_iterator entrada(carpeta, error), fin; !error && entrada != fin;
         entrada.increment(error)) {
        std::string nombre = entrada->path().filename();
        if (nombre.starts_with(principio)) nombres.push_back(std::move(nombre));
    }
    std::ranges::sort(nombres);
    return nombres;
}

} // namespace ovanta
