#include "platform/simulada/InstantaneaArbol.h"

#include <algorithm>
#include <filesystem>
#include <sys/stat.h>

namespace ovanta {

namespace fs = std::filesystem;

namespace {

bool enAlguna(const std::string &ruta, const std::vector<std::string> &carpetas)
{
    return std::any_of(carpetas.begin(), carpetas.end(), [&ruta](const std::string &carpeta) {
        return ruta == carpeta || ruta.starts_with(carpeta + "/");
    });
}

std::vector<std::string> sinLasDe(std::vector<std::string> rutas, const std::vector<std::string> &permitidas)
{
    std::erase_if(rutas, [&permitidas](const std::string &ruta) { return enAlguna(ruta, permitidas); });
    return rutas;
}

} // namespace

std::optional<FichaArbol> fichar(const std::string &ruta)
{
    struct stat estado{};
    if (::lstat(ruta.c_str(), &estado) != 0) return std::nullopt;
    FichaArbol ficha;
    ficha.identidad = {estado.st_dev, estado.st_ino, estado.st_mode & S_IFMT};
    ficha.permisos = estado.st_mode & 07777U;
    if (S_ISDIR(estado.st_mode)) return ficha;
    ficha.bytes = static_cast<std::uint64_t>(estado.st_size);
    ficha.modificado = estado.st_mtim.tv_sec * 1'000'000'000 + estado.st_mtim.tv_nsec;
    return ficha;
}

InstantaneaArbol fotografiarArbol(const std::string &raiz)
{
    InstantaneaArbol instantanea;
    constexpr auto opciones = fs::directory_options::skip_permission_denied;
    for (const auto &entrada : fs::recursive_directory_iterator(raiz, opciones)) {
        const std::string &ruta = entrada.path().native();
        if (const auto ficha = fichar(ruta)) instantanea.emplace(ruta.substr(raiz.size() + 1), *ficha);
    }
    return instantanea;
}

CambiosArbol comparar(const InstantaneaArbol &antes, const InstantaneaArbol &despues)
{
    CambiosArbol cambios;
    for (const auto &[ruta, ficha] : antes) {
        const auto ahora = despues.find(ruta);
        if (ahora == despues.end())
            cambios.desaparecidas.push_back(ruta);
        else if (ahora->second != ficha)
            cambios.cambiadas.push_back(ruta);
    }
    for (const auto &[ruta, ficha] : despues)
        if (!antes.contains(ruta)) cambios.aparecidas.push_back(ruta);
    return cambios;
}

CambiosArbol fueraDe(const CambiosArbol &cambios, const std::vector<std::string> &permitidas)
{
    return {sinLasDe(cambios.desaparecidas, permitidas), sinLasDe(cambios.aparecidas, permitidas),
            sinLasDe(cambios.cambiadas, permitidas)};
}

} // namespace ovanta
