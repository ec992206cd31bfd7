#include "platform/linux/LugaresLinux.h"

#include "core/Enlaces.h"
#include "core/LeerArchivo.h"
#include "core/Recursos.h"
#include "core/Rutas.h"
#include "platform/linux/CarpetasXdg.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace ovanta {

namespace {

constexpr std::uint64_t limiteUserDirs = 64 * 1024;

std::optional<std::string> variable(const char *nombre)
{
    const char *valor = std::getenv(nombre);
    return valor ? std::optional<std::string>{valor} : std::nullopt;
}

std::string hogarDeLaBase()
{
    std::vector<char> memoria(4096);
    passwd datos{};
    passwd *hallado = nullptr;
    while (::getpwuid_r(::getuid(), &datos, memoria.data(), memoria.size(), &hallado) == ERANGE)
        memoria.resize(memoria.size() * 2);
    const std::string hogar = hallado ? hallado->pw_dir : "";
    return hogar.starts_with('/') ? hogar : "/";
}

std::string hogarDe(const std::optional<std::string> &home)
{
    const std::string texto = home && home->starts_with('/') ? *home : hogarDeLaBase();
    return resolverEnlaces(texto).value_or(estandarizar(texto));
}

std::string absolutaO(const std::optional<std::string> &ruta, std::string otra)
{
    return ruta && ruta->starts_with('/') ? *ruta : std::move(otra);
}

std::string leerUserDirs(const EntornoLugares &entorno, const std::string &hogar)
{
    try {
        return leerArchivo(carpetaDeConfiguracion(entorno, hogar) + "/user-dirs.dirs", limiteUserDirs,
                           EnlaceFinal::seguir);
    } catch (const ErrorDeLectura &) {
        return {}; // most have none, and the names in English are protected anyhow
    }
}

/// Where people's own data lies on Linux besides the places that every platform has.
std::vector<std::string> protegidasDe(std::string_view userDirs, const std::string &hogar)
{
    std::vector<std::string> protegidas = {
        ".local", ".local/share", ".local/state", ".local/share/keyrings", ".var",  ".var/app",
        "snap",   ".mozilla",     ".thunderbird", ".password-store",       ".kube", ".docker",
        ".pki",   ".bashrc",      ".profile",
    };
    for (std::string &carpeta : carpetasDelUsuario(userDirs, hogar))
        protegidas.push_back(std::move(carpeta));
    return protegidas;
}

/// The folders of an analysis by the names that they have in the user's language, beside the English
/// ones.
void agregarRaices(Lugares &lugares, std::string_view userDirs)
{
    const auto agregar = [&](std::string_view clave, std::vector<std::string> &lista) {
        const auto carpeta = carpetaDelUsuario(userDirs, lugares.hogar, clave);
        if (carpeta && std::ranges::find(lista, *carpeta) == lista.end()) lista.push_back(*carpeta);
    };
    for (const char *clave :
         {"XDG_DOWNLOAD_DIR", "XDG_DESKTOP_DIR", "XDG_DOCUMENTS_DIR", "XDG_PICTURES_DIR", "XDG_VIDEOS_DIR"})
        agregar(clave, lugares.raices);
    agregar("XDG_DOWNLOAD_DIR", lugares.descargas);
}

/// The Trash as the environment spells it, and where that really lies.
std::vector<std::string> papelerasDe(const std::string &datos)
{
    std::vector<std::string> papeleras{unir(estandarizar(datos), "Trash")};
    if (const auto reales = resolverEnlaces(datos); reales && unir(*reales, "Trash") != papeleras.front())
        papeleras.push_back(unir(*reales, "Trash"));
    return papeleras;
}

} // namespace

EntornoLugares EntornoLugares::delProceso()
{
    const std::string programa = resolverEnlaces("/proc/self/exe").value_or("/");
    return {variable("HOME"), variable("XDG_CONFIG_HOME"), std::string{carpetaContenedora(programa)},
            variable("XDG_RUNTIME_DIR"), variable("XDG_DATA_HOME")};
}

Lugares lugaresLinux(const EntornoLugares &entorno)
{
    Lugares lugares;
    lugares.hogar = hogarDe(entorno.home);
    const std::string userDirs = leerUserDirs(entorno, lugares.hogar);
    lugares.protegidas = protegidasDe(userDirs, lugares.hogar);
    agregarRaices(lugares, userDirs);
    lugares.papeleras = papelerasDe(carpetaDeDatosXdg(entorno, lugares.hogar));
    lugares.papeleraDeVolumen = ".Trash-" + std::to_string(::geteuid());
    lugares.recursos = carpetaRecursos(entorno.carpetaPrograma);
    lugares.catalogo = lugares.recursos + "/linux/rules.json";
    return lugares;
}

std::string carpetaDeConfiguracion(const EntornoLugares &entorno, const std::string &hogar)
{
    return absolutaO(entorno.xdgConfig, hogar + "/.config");
}

std::string carpetaDeDatosXdg(const EntornoLugares &entorno, const std::string &hogar)
{
    return absolutaO(entorno.xdgDatos, hogar + "/.local/share");
}

std::string carpetaDeSesion(const EntornoLugares &entorno, const std::string &hogar)
{
    return absolutaO(entorno.xdgRuntime, hogar + "/.cache");
}

} // namespace ovanta
