#include "tests/core/SeguridadPropiedades.h"

#include <algorithm>
#include <array>
#include <climits>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace ovanta::pruebas {

namespace {

// Written the slow and plain way, apart from the code that is tested.
std::vector<std::string> trozos(const std::string &ruta)
{
    std::vector<std::string> partes(1);
    for (const char c : ruta) {
        if (c == '/')
            partes.emplace_back();
        else
            partes.back() += c;
    }
    return partes;
}

std::string normal(const std::string &ruta)
{
    std::vector<std::string> partes;
    for (const auto &parte : trozos(ruta)) {
        if (parte.empty() || parte == ".") continue;
        if (parte != "..")
            partes.push_back(parte);
        else if (!partes.empty())
            partes.pop_back();
    }
    std::string unida;
    for (const auto &parte : partes)
        unida += "/" + parte;
    return unida.empty() ? "/" : unida;
}

bool dentro(const std::string &ruta, const std::string &base)
{
    return ruta == base || ruta.starts_with(base + "/");
}

bool tieneNombreProtegido(const std::string &ruta)
{
    return std::ranges::any_of(trozos(ruta), [](const std::string &parte) {
        return parte == ".git" || parte == ".ssh" || parte == ".gnupg" || parte == "Keychains";
    });
}

bool esMotivoConocido(const std::string &motivo)
{
    static const std::array<std::string, 11> conocidos{
        "Ruta vacía.",
        "Fuera de tu carpeta de inicio, rechazado: ",
        "Está en tu lista de ubicaciones protegidas: ",
        "Ruta protegida, rechazada: ",
        "Contiene un componente protegido (",
        "El enlace apunta fuera de tu carpeta: ",
        "Solo se permite operar dentro de la carpeta que elegiste.",
        "No se opera sobre enlaces ni rutas protegidas.",
        "Esta selección incluye una carpeta del sistema o de aplicaciones protegida.",
        "La selección contiene una ubicación que protegiste.",
        "El elemento apunta fuera de la carpeta elegida."};
    return std::ranges::any_of(conocidos, [&](const auto &c) { return motivo.starts_with(c); });
}

std::string incumplimientoDeAceptada(const Seguridad &seguridad, const std::string &ruta)
{
    const auto &hogar = seguridad.hogar();
    if (ruta.find('\0') != std::string::npos) return "has a NUL byte";
    if (!ruta.starts_with(hogar + "/")) return "is not below home";
    if (ruta != normal(ruta)) return "is not normal";
    if (tieneNombreProtegido(ruta.substr(hogar.size()))) return "is in a protected name";
    if (seguridad.protegidas().contains(ruta)) return "is a protected place";
    for (const auto &propia : seguridad.proteccionesUsuario())
        if (dentro(ruta, propia)) return "is in a place of the user's list";
    const auto real = segunElNucleo(ruta);
    if (real && !dentro(*real, hogar)) return "leads out of home, to " + *real;
    // Blanks at the end of a name are cut the next time; anything else must come back as it is.
    if (recortarBlancos(ruta) == ruta && seguridad.validar(ruta) != ruta) return "is not accepted again";
    return {};
}

} // namespace

std::optional<std::string> segunElNucleo(const std::string &ruta)
{
    const int descriptor = ::open(ruta.c_str(), O_PATH | O_CLOEXEC);
    if (descriptor < 0) return std::nullopt;
    std::array<char, PATH_MAX> real;
    const auto nombre = "/proc/self/fd/" + std::to_string(descriptor);
    const auto largo = ::readlink(nombre.c_str(), real.data(), real.size());
    ::close(descriptor);
    if (largo < 0) return std::nullopt;
    return std::string(real.data(), static_cast<std::size_t>(largo));
}

std::string incumplimientoDeValidar(const Seguridad &seguridad, const std::string &entrada)
{
    try {
        return incumplimientoDeAceptada(seguridad, seguridad.validar(entrada));
    } catch (const Seguridad::Rechazo &rechazo) {
        if (!esMotivoConocido(rechazo.motivo)) return "is refused in unknown words: " + rechazo.motivo;
        const std::string aFuera = "El enlace apunta fuera de tu carpeta: ";
        if (!rechazo.motivo.starts_with(aFuera)) return {};
        const auto destino = rechazo.motivo.substr(aFuera.size());
        return dentro(destino, seguridad.hogar()) ? "is refused though it stays in home" : "";
    }
}

std::string incumplimientoDeSeleccion(const Seguridad &seguridad, const std::string &entrada,
                                      const std::string &raiz)
{
    std::string ruta;
    try {
        ruta = seguridad.validarDentroDeSeleccion(entrada, raiz);
    } catch (const Seguridad::Rechazo &rechazo) {
        return esMotivoConocido(rechazo.motivo) ? "" : "is refused in unknown words: " + rechazo.motivo;
    } catch (const std::system_error &) {
        return {};
    }
    if (ruta != normal(ruta) || !ruta.starts_with(normal(raiz) + "/"))
        return "is not below the chosen folder";
    if (tieneNombreProtegido(ruta)) return "is in a protected name";
    struct stat atributos = {};
    if (::lstat(ruta.c_str(), &atributos) == 0 && S_ISLNK(atributos.st_mode)) return "is a link";
    const auto real = segunElNucleo(ruta), raizReal = segunElNucleo(raiz);
    if (real && raizReal && *raizReal != "/" && !dentro(*real, *raizReal)) return "leads out, to " + *real;
    return dentro(ruta, seguridad.hogar()) ? incumplimientoDeAceptada(seguridad, ruta) : "";
}

std::string incumplimientoDeAnalisis(const Seguridad &seguridad, const std::string &entrada,
                                     const ConjuntoRutas &rutas)
{
    const auto &hogar = seguridad.hogar();
    const bool absoluta = entrada.starts_with('/') || entrada.starts_with('~');
    if (!absoluta) return {};
    const auto ruta = normal(entrada.starts_with('~') ? hogar + entrada.substr(1) : entrada);
    const auto &protegidas = seguridad.protegidas();
    const bool protegida =
        ruta == hogar || tieneNombreProtegido(ruta) ||
        std::ranges::any_of(protegidas, [&](auto &p) { return p != hogar && dentro(ruta, p); });
    const bool bajo = std::ranges::any_of(rutas, [&](auto &r) { return dentro(ruta, r); });
    const bool sobre = std::ranges::any_of(rutas, [&](auto &r) { return dentro(r, ruta); });
    if (seguridad.esRutaProtegidaParaAnalisis(entrada, rutas) != (protegida || bajo))
        return "analysis differs";
    if (seguridad.cruzaProteccionPersonalizada(entrada, rutas) != (bajo || sobre)) return "crossing differs";
    return {};
}

} // namespace ovanta::pruebas
