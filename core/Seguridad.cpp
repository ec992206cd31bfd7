#include "core/Seguridad.h"

#include "core/Enlaces.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace ovanta {

Seguridad::Seguridad(Entorno entorno, Preferencias &preferencias)
    : m_entorno(std::move(entorno)), m_preferencias(preferencias)
{
    // Never the empty text: every absolute path would lie under it.
    m_entorno.hogar = m_entorno.hogar.starts_with('/') ? estandarizar(m_entorno.hogar) : "/";
    for (const auto entrada : entradasProtegidas)
        m_protegidas.insert(enHogar(entrada));
    for (const auto &entrada : m_entorno.protegidasDePlataforma)
        m_protegidas.insert(estandarizar(enHogar(entrada)));
    m_protegidasSinHogar = m_protegidas;
    m_protegidasSinHogar.erase(hogar());
}

std::string Seguridad::normalizar(std::string_view ruta) const
{
    return estandarizar(expandirTilde(ruta, hogar()));
}

bool Seguridad::attributesNoEnlace(const std::string &ruta)
{
    return !esEnlace(ruta);
}

bool Seguridad::esLegibleYNoEnlace(const std::string &ruta)
{
    try {
        return attributesNoEnlace(ruta);
    } catch (const std::system_error &) {
        return false;
    }
}

std::string_view Seguridad::componenteProtegido(std::string_view ruta)
{
    for (auto c = siguienteComponente(ruta); !c.empty(); c = siguienteComponente(ruta))
        if (std::ranges::find(nombresProtegidos, c) != nombresProtegidos.end()) return c;
    return {};
}

std::string Seguridad::validar(std::string_view ruta) const
{
    const auto recortada = recortarBlancos(ruta);
    if (recortada.empty()) throw Rechazo("Ruta vacía.");
    std::string limpia = normalizar(recortada);
    // The system ends a path at a NUL byte, so what lies before it would be moved in its stead.
    const bool cortada = limpia.find('\0') != std::string::npos;
    if (cortada || !yaceEn(limpia, hogar()))
        throw Rechazo("Fuera de tu carpeta de inicio, rechazado: " + limpia);
    if (yaceEnAlguna(limpia, proteccionesUsuario()))
        throw Rechazo("Está en tu lista de ubicaciones protegidas: " + limpia);
    if (m_protegidas.contains(limpia)) throw Rechazo("Ruta protegida, rechazada: " + limpia);
    const auto componente = componenteProtegido(std::string_view(limpia).substr(hogar().size()));
    if (!componente.empty())
        throw Rechazo("Contiene un componente protegido (" + std::string(componente) + "): " + limpia);
    const auto resuelta = resolverEnlaces(limpia);
    if (resuelta && !yaceEn(*resuelta, hogar()))
        throw Rechazo("El enlace apunta fuera de tu carpeta: " + *resuelta);
    return limpia;
}

bool Seguridad::esRutaProtegidaParaAnalisis(std::string_view ruta,
                                            const ConjuntoRutas &proteccionesUsuario) const
{
    const std::string limpia = normalizar(ruta);
    // Being in home alone protects nothing.
    return limpia == hogar() || yaceEnAlguna(limpia, m_protegidasSinHogar) ||
           yaceEnAlguna(limpia, proteccionesUsuario) || !componenteProtegido(limpia).empty();
}

} // namespace ovanta
