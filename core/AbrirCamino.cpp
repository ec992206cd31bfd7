#include "core/AbrirCamino.h"

#include "core/Descriptor.h"

#include <cerrno>
#include <climits>
#include <string>
#include <string_view>

namespace ovanta {

namespace {

/// The longest piece that ends before a slash and that the system takes at once.
std::string_view primerTramo(std::string_view ruta)
{
    if (ruta.size() < PATH_MAX) return ruta;
    const auto barra = ruta.rfind('/', PATH_MAX - 1);
    return barra == std::string_view::npos || barra == 0 ? ruta : ruta.substr(0, barra);
}

int abrirPorTramos(std::string_view resto, int opciones)
{
    Descriptor carpeta;
    for (;;) {
        const std::string tramo(primerTramo(resto));
        const bool ultimo = tramo.size() == resto.size();
        const int desde = carpeta.abierto() ? carpeta.numero() : AT_FDCWD;
        const int abierto =
            ::openat(desde, tramo.c_str(), ultimo ? opciones : soloPasar | O_DIRECTORY | O_CLOEXEC);
        if (ultimo || abierto < 0) return abierto;
        carpeta = Descriptor{abierto};
        resto.remove_prefix(tramo.size());
        resto.remove_prefix(resto.find_first_not_of('/'));
    }
}

} // namespace

int abrirCamino(const char *ruta, int opciones)
{
    const int abierto = ::open(ruta, opciones);
    if (abierto >= 0 || errno != ENAMETOOLONG) return abierto;
    return abrirPorTramos(ruta, opciones);
}

} // namespace ovanta
