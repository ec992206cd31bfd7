#include "core/EntornoHerramienta.h"

#include <cstdlib>
#include <string_view>
#include <unistd.h>

namespace ovanta {
namespace {

std::string carpetaDe(const std::string &ruta)
{
    const std::size_t barra = ruta.rfind('/');
    return barra == 0 ? "/" : ruta.substr(0, barra);
}

std::string pathPara(const std::string &binario)
{
    const char *propio = std::getenv("PATH");
    if (propio == nullptr || *propio == '\0') propio = "/usr/bin:/bin:/usr/sbin:/sbin";
    return "PATH=" + carpetaDe(binario) + ":/opt/homebrew/bin:/usr/local/bin:" + propio;
}

} // namespace

std::vector<std::string> entornoHerramienta(const std::string &binario)
{
    std::vector<std::string> entorno;
    for (char **variable = environ; variable != nullptr && *variable != nullptr; ++variable) {
        const std::string_view par = *variable;
        if (!par.starts_with("PATH=") && !par.starts_with("HOMEBREW_NO_AUTO_UPDATE=")) {
            entorno.emplace_back(par);
        }
    }
    entorno.push_back(pathPara(binario));
    entorno.emplace_back("HOMEBREW_NO_AUTO_UPDATE=1");
    return entorno;
}

} // namespace ovanta
