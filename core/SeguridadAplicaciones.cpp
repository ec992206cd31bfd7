#include "core/Enlaces.h"
#include "core/Seguridad.h"

#include <algorithm>

namespace ovanta {

namespace {

bool esLetraOCifra(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// ^[A-Za-z0-9.-]+$ without the system's own.
bool esDeTerceros(std::string_view bundleID)
{
    return !bundleID.empty() && !bundleID.starts_with("com.apple.") &&
           std::ranges::all_of(bundleID, [](char c) { return esLetraOCifra(c) || c == '.' || c == '-'; });
}

bool esExtensionApp(std::string_view extension)
{
    return std::ranges::equal(extension, std::string_view("app"), [](char propia, char esperada) {
        return propia == esperada || propia == esperada - 'a' + 'A';
    });
}

} // namespace

std::string Seguridad::validarAplicacionInstalada(std::string_view ruta, std::string_view bundleID) const
{
    if (!esDeTerceros(bundleID)) throw Rechazo("No se desinstalan aplicaciones del sistema.");
    std::string limpia = normalizar(ruta);
    const auto carpeta = carpetaContenedora(limpia);
    if (!esExtensionApp(extension(limpia)) ||
        (carpeta != "/Applications" && carpeta != enHogar("Applications")))
        throw Rechazo(
            "Solo se admiten apps de terceros directamente dentro de /Applications o ~/Applications.");
    if (!attributesNoEnlace(limpia) || !esPaquete(limpia, bundleID))
        throw Rechazo("La app cambió o no coincide con su identificador; vuelve a analizarla.");
    if (cruzaListaDelUsuario(limpia))
        throw Rechazo("La aplicación está dentro de una ubicación que protegiste.");
    return limpia;
}

bool Seguridad::esPaquete(const std::string &ruta, std::string_view bundleID) const
{
    return m_entorno.identificadorDePaquete && m_entorno.identificadorDePaquete(ruta) == bundleID;
}

std::string Seguridad::validarRastroAplicacion(std::string_view ruta, std::string_view bundleID) const
{
    if (!esDeTerceros(bundleID)) throw Rechazo("Identificador de aplicación inválido.");
    std::string limpia = normalizar(ruta);
    if (!esRastroDe(limpia, bundleID) || !existe(limpia))
        throw Rechazo("Solo se admiten archivos asociados directamente a esta app.");
    if (!attributesNoEnlace(limpia)) throw Rechazo("No se elimina un enlace simbólico asociado a una app.");
    const auto resuelta = resolverEnlaces(limpia);
    if (!resuelta || !resuelta->starts_with(enHogar("Library/")) || cruzaListaDelUsuario(limpia))
        throw Rechazo("El rastro apunta a una ubicación protegida.");
    return limpia;
}

bool Seguridad::esRastroDe(std::string_view ruta, std::string_view bundleID) const
{
    struct Lugar
    {
        std::string_view carpeta, sufijo;
    };
    static constexpr std::array<Lugar, 6> lugares{{{"Library/Application Support/", ""},
                                                   {"Library/Caches/", ""},
                                                   {"Library/Containers/", ""},
                                                   {"Library/Preferences/", ".plist"},
                                                   {"Library/Logs/", ""},
                                                   {"Library/Saved Application State/", ".savedState"}}};
    return std::ranges::any_of(lugares, [&](const Lugar &lugar) {
        return ruta == enHogar(lugar.carpeta).append(bundleID).append(lugar.sufijo);
    });
}

std::string Seguridad::validarAgenteInicio(std::string_view ruta) const
{
    const std::string agentes = enHogar("Library/LaunchAgents/");
    std::string limpia = normalizar(ruta);
    if (!limpia.starts_with(agentes) || extension(limpia) != "plist" || !esLegibleYNoEnlace(limpia))
        throw Rechazo("Solo se pueden desactivar agentes .plist de tu carpeta de usuario.");
    const auto resuelta = resolverEnlaces(limpia);
    if (!resuelta || !resuelta->starts_with(agentes) || cruzaListaDelUsuario(limpia))
        throw Rechazo("El agente está protegido o apunta fuera de LaunchAgents.");
    return limpia;
}

} // namespace ovanta
