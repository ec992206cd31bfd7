#include "platform/linux/OrigenProceso.h"

#include "core/Rutas.h"
#include "platform/linux/Renglones.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace ovanta {

namespace {

using Clase = OrigenProceso::Clase;

constexpr std::size_t limiteRuta = 4096;
constexpr std::size_t cifrasDeNumero = 12; ///< as the containers' own tools show them

bool esNumero(std::string_view texto)
{
    return !texto.empty() && texto.find_first_not_of("0123456789") == texto.npos;
}

bool esHexadecimal(std::string_view texto)
{
    return texto.size() >= cifrasDeNumero && texto.find_first_not_of("0123456789abcdef") == texto.npos;
}

/// Takes `principio` off the front, `fin` off the end; nothing where one is missing or nothing is left.
std::optional<std::string_view> entre(std::string_view texto, std::string_view principio,
                                      std::string_view fin)
{
    if (texto.size() <= principio.size() + fin.size() || !texto.starts_with(principio) ||
        !texto.ends_with(fin))
        return std::nullopt;
    return texto.substr(principio.size(), texto.size() - principio.size() - fin.size());
}

OrigenProceso aplicacion(std::string_view id)
{
    OrigenProceso origen;
    if (id.ends_with(".desktop")) id.remove_suffix(8);
    origen.clase = id.empty() ? Clase::ninguna : Clase::aplicacion;
    origen.id = sinEscapesDeUnidad(id);
    return origen;
}

OrigenProceso contenedor(std::string_view id, bool conNombre)
{
    OrigenProceso origen;
    origen.clase = Clase::contenedor;
    origen.id = conNombre ? sinEscapesDeUnidad(id) : std::string{id.substr(0, cifrasDeNumero)};
    origen.conNombre = conNombre;
    return origen;
}

/// Without what stands before the last "-": the launcher is a word of its own, and an id's own dashes
/// are escaped.
std::string_view tras(std::string_view texto, char separador)
{
    return texto.substr(texto.rfind(separador) + 1);
}

/// "app-<launcher>-<id>-<number>.scope" and ".service", "app-<launcher>-<id>@<mark>.service"; the
/// launcher may be missing.
std::optional<OrigenProceso> deAplicacion(std::string_view unidad)
{
    const auto alcance = entre(unidad, "app-", ".scope");
    const auto nucleo = alcance ? alcance : entre(unidad, "app-", ".service");
    if (!nucleo) return std::nullopt;
    std::string_view resto = *nucleo;
    if (const std::size_t arroba = resto.find('@'); arroba != resto.npos) {
        OrigenProceso origen = aplicacion(tras(resto.substr(0, arroba), '-'));
        origen.deInicio = resto.substr(arroba + 1) == "autostart";
        return origen;
    }
    const std::size_t guion = resto.rfind('-');
    if (guion != resto.npos && (alcance || esNumero(resto.substr(guion + 1)))) resto = resto.substr(0, guion);
    return aplicacion(tras(resto, '-'));
}

/// "snap.<name>.<application>-<uuid>.scope", also with a point before the uuid or none.
std::optional<OrigenProceso> deSnap(std::string_view unidad)
{
    constexpr std::size_t largoUuid = 36;
    auto nucleo = entre(unidad, "snap.", ".scope");
    if (!nucleo) return std::nullopt;
    if (nucleo->size() > largoUuid + 1) {
        const std::string_view uuid = nucleo->substr(nucleo->size() - largoUuid);
        const char separador = (*nucleo)[nucleo->size() - largoUuid - 1];
        if (std::ranges::count(uuid, '-') == 4 && (separador == '-' || separador == '.'))
            nucleo = nucleo->substr(0, nucleo->size() - largoUuid - 1);
    }
    std::string id{*nucleo};
    const std::size_t punto = id.find('.');
    if (punto == id.npos) return std::nullopt;
    id[punto] = '_';
    return aplicacion(id);
}

/// A service that the bus started for an application: "dbus-:1.2-<name>@0.service".
std::optional<OrigenProceso> deBus(std::string_view unidad)
{
    const auto nucleo = entre(unidad, "dbus-:", ".service");
    if (!nucleo) return std::nullopt;
    return aplicacion(tras(nucleo->substr(0, nucleo->find('@')), '-'));
}

std::optional<OrigenProceso> deContenedor(std::string_view parte, std::string_view madre)
{
    constexpr std::string_view principios[] = {
        "docker-",      "libpod-conmon-", "libpod-",         "podman-",
        "crio-conmon-", "crio-",          "cri-containerd-", "nerdctl-",
    };
    std::string_view nombre = parte;
    if (nombre.ends_with(".scope")) nombre.remove_suffix(6);
    for (const std::string_view principio : principios) {
        if (nombre.starts_with(principio) && esHexadecimal(nombre.substr(principio.size())))
            return contenedor(nombre.substr(principio.size()), false);
    }
    // "kubepods-….slice:cri-containerd:<number>"
    if (nombre.find(":cri-containerd:") != nombre.npos) return contenedor(tras(nombre, ':'), false);
    const bool bajoGestor = madre == "docker" || madre == "podman" || madre == "libpod_parent" ||
                            madre == "crio" || madre == "containerd" || madre.starts_with("pod");
    if (bajoGestor && esHexadecimal(nombre)) return contenedor(nombre, false);
    if (madre == "lxc" || madre == "lxc.payload" || madre == "lxc.monitor") return contenedor(nombre, true);
    for (const std::string_view principio : {"lxc.payload.", "lxc.monitor."})
        if (const auto resto = entre(parte, principio, "")) return contenedor(*resto, true);
    if (const auto resto = entre(parte, "systemd-nspawn@", ".service")) return contenedor(*resto, true);
    return std::nullopt;
}

/// "machine-qemu\x2d1\x2ddebian12.scope", "machine-lxc\x2d99\x2dname.scope", "machine-name.scope".
std::optional<OrigenProceso> deMaquina(std::string_view parte)
{
    const auto nucleo = entre(parte, "machine-", ".scope");
    if (!nucleo) return std::nullopt;
    const std::string nombre = sinEscapesDeUnidad(*nucleo);
    const std::size_t primero = nombre.find('-');
    const std::size_t segundo = primero == nombre.npos ? primero : nombre.find('-', primero + 1);
    const bool conNumero = segundo != nombre.npos && segundo + 1 < nombre.size() &&
                           esNumero(std::string_view{nombre}.substr(primero + 1, segundo - primero - 1));
    if (!conNumero) return contenedor(*nucleo, true);
    OrigenProceso origen = contenedor({}, true);
    origen.id = nombre.substr(segundo + 1);
    if (nombre.starts_with("qemu-")) origen.clase = Clase::maquinaVirtual;
    return origen;
}

bool esDeSesion(std::string_view parte)
{
    return parte == "session.slice" || parte == "background.slice" || parte == "system.slice" ||
           parte == "init.scope";
}

/// A service in a slice of the application's: "app-<id>.slice/<any>.service". What lies there in scopes
/// was only started by it.
std::optional<OrigenProceso> deServicioEnRama(std::string_view parte, std::string_view madre)
{
    const auto nucleo = entre(madre, "app-", ".slice");
    if (!nucleo || !parte.ends_with(".service")) return std::nullopt;
    return aplicacion(tras(*nucleo, '-'));
}

std::optional<OrigenProceso> deUnidadPropia(std::string_view parte, std::string_view madre)
{
    if (auto origen = deAplicacion(parte)) return origen;
    if (auto origen = deSnap(parte)) return origen;
    if (auto origen = deBus(parte)) return origen;
    return deServicioEnRama(parte, madre);
}

/// The outermost part that tells something; a container that a service keeps is still one.
OrigenProceso delGrupo(std::string_view grupo, std::string_view propio)
{
    const bool dentro = !propio.empty() && yaceEn(grupo, propio);
    const std::size_t desde = dentro ? propio.size() : 0;
    std::string_view resto = grupo.substr(desde);
    std::string_view madre;
    OrigenProceso deServicio;
    while (true) {
        const std::string_view parte = siguienteComponente(resto);
        if (parte.empty()) return deServicio;
        auto origen = deContenedor(parte, madre);
        if (!origen) origen = deMaquina(parte);
        if (!origen && deServicio.clase == Clase::ninguna) origen = deUnidadPropia(parte, madre);
        if (origen && origen->clase != Clase::ninguna) {
            origen->grupo = grupo.substr(0, static_cast<std::size_t>(parte.end() - grupo.begin()));
            return *origen;
        }
        if (esDeSesion(parte)) deServicio.clase = Clase::sesion;
        madre = parte;
    }
}

/// The path in a line "number:controllers:path" of the hierarchy with those controllers.
std::optional<std::string_view> rutaDe(std::string_view linea, std::string_view controladores)
{
    const std::size_t uno = linea.find(':');
    const std::size_t dos = uno == linea.npos ? uno : linea.find(':', uno + 1);
    if (dos == linea.npos || linea.substr(uno + 1, dos - uno - 1) != controladores) return std::nullopt;
    std::string_view ruta = linea.substr(dos + 1);
    if (!ruta.starts_with('/') || ruta.size() > limiteRuta) return std::nullopt;
    return ruta;
}

} // namespace

std::string sinEscapesDeUnidad(std::string_view nombre)
{
    std::string texto;
    for (std::size_t i = 0; i < nombre.size(); ++i) {
        unsigned char byte = 0;
        const std::string_view cifras = nombre.substr(i, 4);
        if (cifras.size() == 4 && cifras.starts_with("\\x") &&
            std::from_chars(cifras.data() + 2, cifras.data() + 4, byte, 16).ptr == cifras.data() + 4) {
            texto += static_cast<char>(byte);
            i += 3;
        } else {
            texto += nombre[i];
        }
    }
    return texto;
}

OrigenProceso origenDe(std::string_view cgroup, std::string_view propio)
{
    OrigenProceso origen;
    for (std::string_view resto = cgroup; !resto.empty();) {
        const std::string_view linea = cortar(resto, '\n');
        const auto unificada = rutaDe(linea, "");
        const auto ruta = unificada ? unificada : rutaDe(linea, "name=systemd");
        if (!ruta) continue;
        OrigenProceso hallado = delGrupo(*ruta, propio);
        hallado.unificado = unificada.has_value();
        if (hallado.clase == Clase::ninguna) continue;
        if (origen.clase == Clase::ninguna || hallado.unificado) origen = std::move(hallado);
    }
    return origen;
}

} // namespace ovanta
