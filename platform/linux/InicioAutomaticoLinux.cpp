#include "platform/linux/InicioAutomaticoLinux.h"

#include "core/ErrorSistema.h"
#include "core/EscrituraAtomica.h"
#include "core/LeerArchivo.h"
#include "platform/linux/EntradaAutostart.h"

#include <cerrno>
#include <filesystem>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace ovanta {

namespace {

constexpr std::string_view nombre = "/com.belmora.Ovanta.desktop";
constexpr std::uint64_t limiteEntrada = 256 * 1024;

using Resultado = std::expected<void, std::string>;

/// The text of an entry; nothing where there is none that a session could read.
std::optional<std::string> leerEntrada(const std::string &archivo)
{
    try {
        return leerArchivo(archivo, limiteEntrada, EnlaceFinal::seguir);
    } catch (const ErrorDeLectura &) {
        return std::nullopt;
    }
}

std::unexpected<std::string> fallo(const std::string &ruta, const std::string &motivo)
{
    return std::unexpected("No se pudo cambiar «" + ruta + "»: " + motivo);
}

/// Refuses to replace or drop what is no plain file: whoever put it there means it.
Resultado comprobarQueEsArchivo(const std::string &ruta)
{
    struct stat datos{};
    if (::lstat(ruta.c_str(), &datos) != 0)
        return errno == ENOENT ? Resultado{} : Resultado{fallo(ruta, textoErrno(errno))};
    if (S_ISLNK(datos.st_mode)) return fallo(ruta, "es un enlace que Ovanta no ha creado");
    if (S_ISDIR(datos.st_mode)) return fallo(ruta, "hay una carpeta con ese nombre");
    if (!S_ISREG(datos.st_mode)) return fallo(ruta, "no es un archivo");
    return {};
}

Resultado crearCarpeta(const std::string &ruta)
{
    std::error_code error;
    std::filesystem::create_directories(ruta, error);
    // A dangling link passes for a name that is taken.
    if (!error && !std::filesystem::is_directory(ruta, error)) return fallo(ruta, textoErrno(ENOTDIR));
    return error ? Resultado{fallo(ruta, textoErrno(error.value()))} : Resultado{};
}

} // namespace

InicioAutomaticoLinux::Lugares InicioAutomaticoLinux::Lugares::de(const std::string &configuracion,
                                                                  std::string_view dirs, std::string programa)
{
    Lugares lugares{configuracion + "/autostart", {}, std::move(programa)};
    if (dirs.empty()) dirs = "/etc/xdg";
    while (!dirs.empty()) {
        const std::string_view uno = dirs.substr(0, dirs.find(':'));
        dirs.remove_prefix(std::min(dirs.size(), uno.size() + 1));
        if (uno.starts_with('/')) lugares.sistema.push_back(std::string(uno) + "/autostart");
    }
    return lugares;
}

std::string InicioAutomaticoLinux::archivo() const
{
    return m_lugares.usuario + std::string(nombre);
}

bool InicioAutomaticoLinux::activadoParaTodos() const
{
    for (const std::string &carpeta : m_lugares.sistema)
        if (const auto entrada = leerEntrada(carpeta + std::string(nombre)))
            return arrancaConLaSesion(*entrada);
    return false;
}

bool InicioAutomaticoLinux::activado()
{
    if (const auto entrada = leerEntrada(archivo())) return arrancaConLaSesion(*entrada);
    return activadoParaTodos();
}

Resultado InicioAutomaticoLinux::fijar(bool activado)
{
    if (Resultado plano = comprobarQueEsArchivo(archivo()); !plano) return plano;
    return activado ? activar() : desactivar();
}

Resultado InicioAutomaticoLinux::activar() const
{
    const auto entrada = entradaQueArranca(m_lugares.programa);
    if (!entrada)
        return std::unexpected("La ruta del programa no se puede escribir en una entrada de inicio");
    return escribir(*entrada);
}

Resultado InicioAutomaticoLinux::desactivar() const
{
    if (activadoParaTodos()) return escribir(entradaQueNoArranca());
    if (::unlink(archivo().c_str()) == 0 || errno == ENOENT) return {};
    return fallo(archivo(), textoErrno(errno));
}

Resultado InicioAutomaticoLinux::escribir(const std::string &entrada) const
{
    if (Resultado carpeta = crearCarpeta(m_lugares.usuario); !carpeta) return carpeta;
    const int codigo = escribirAtomico(archivo(), entrada);
    return codigo == 0 ? Resultado{} : Resultado{fallo(archivo(), textoErrno(codigo))};
}

} // namespace ovanta
