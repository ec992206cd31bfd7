#include "core/Enlaces.h"
#include "core/Seguridad.h"

#include <algorithm>

namespace ovanta {

namespace {

bool esRaizOHogar(const std::string &ruta, const std::string &hogar)
{
    return ruta == "/" || ruta == hogar;
}

// Unlike `yaceEn`, everything lies in "/": a chosen folder may turn out to be a link to it.
bool estaEnCarpetaResuelta(const std::string &ruta, const std::string &carpeta)
{
    return carpeta == "/" || yaceEn(ruta, carpeta);
}

} // namespace

bool Seguridad::cruzaCarpetaSensible(std::string_view ruta) const
{
    return std::ranges::any_of(carpetasSensibles,
                               [&](std::string_view carpeta) { return cruza(ruta, enHogar(carpeta)); });
}

std::string Seguridad::validarDentroDeSeleccion(std::string_view ruta,
                                                std::string_view raizSeleccionada) const
{
    std::string limpia = estandarizar(ruta);
    const std::string raiz = estandarizar(raizSeleccionada);
    if (esRaizOHogar(raiz, hogar()) || limpia == raiz || !yaceEn(limpia, raiz))
        throw Rechazo("Solo se permite operar dentro de la carpeta que elegiste.");
    const auto raizResuelta = resolverEnlaces(raiz);
    if (!componenteProtegido(limpia).empty() || !attributesNoEnlace(limpia))
        throw Rechazo("No se opera sobre enlaces ni rutas protegidas.");
    if (cruzaCarpetaSensible(limpia))
        throw Rechazo("Esta selección incluye una carpeta del sistema o de aplicaciones protegida.");
    if (cruzaListaDelUsuario(limpia)) throw Rechazo("La selección contiene una ubicación que protegiste.");
    const auto resuelta = resolverEnlaces(limpia);
    if (!resuelta || !raizResuelta || !estaEnCarpetaResuelta(*resuelta, *raizResuelta))
        throw Rechazo("El elemento apunta fuera de la carpeta elegida.");
    // A folder on another volume is not held to the rules of home.
    if (yaceEn(limpia, hogar())) validar(limpia);
    return limpia;
}

std::string Seguridad::validarRaizElegida(std::string_view ruta) const
{
    std::string raiz = estandarizar(ruta);
    if (esRaizOHogar(raiz, hogar()) || !esLegibleYNoEnlace(raiz))
        throw Rechazo("Elige una carpeta concreta, no la raíz del disco ni tu carpeta de inicio.");
    if (!componenteProtegido(raiz).empty()) throw Rechazo("No se analiza una carpeta del sistema protegida.");
    if (cruzaCarpetaSensible(raiz) || cruzaListaDelUsuario(raiz))
        throw Rechazo("Esta carpeta contiene ubicaciones protegidas.");
    return raiz;
}

} // namespace ovanta
