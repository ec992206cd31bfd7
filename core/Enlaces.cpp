#include "core/Enlaces.h"

#include "core/CaminoLargo.h"
#include "core/ErrorSistema.h"

#include <cerrno>
#include <cstdlib>
#include <memory>
#include <sys/stat.h>
#include <utility>

namespace ovanta {

namespace {

bool puedeNombrarAlgo(const std::string &ruta)
{
    return ruta.starts_with('/') && ruta.find('\0') == std::string::npos;
}

} // namespace

bool esEnlace(const std::string &ruta)
{
    if (!puedeNombrarAlgo(ruta)) lanzarErrno(ENOENT);
    struct stat atributos = {};
    if (::lstat(ruta.c_str(), &atributos) == 0) return S_ISLNK(atributos.st_mode);
    if (errno != ENAMETOOLONG) lanzarErrno(errno);
    const auto final = andarCaminoLargo(ruta, UltimoEnlace::describir);
    if (!final) lanzarErrno(final.error());
    return S_ISLNK(final->modo);
}

std::optional<std::string> resolverEnlaces(const std::string &ruta)
{
    if (!puedeNombrarAlgo(ruta)) return std::nullopt;
    const std::unique_ptr<char, decltype(&std::free)> resuelta(::realpath(ruta.c_str(), nullptr), &std::free);
    if (resuelta) return resuelta.get();
    if (errno != ENAMETOOLONG) return std::nullopt;
    auto final = andarCaminoLargo(ruta, UltimoEnlace::seguir);
    if (!final) return std::nullopt;
    return std::move(final->ruta);
}

bool existe(const std::string &ruta)
{
    return resolverEnlaces(ruta).has_value();
}

} // namespace ovanta
