#include "platform/simulada/PapeleraSimulada.h"

#include "core/ErrorSistema.h"
#include "platform/simulada/InstantaneaArbol.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <utility>

namespace ovanta {

namespace fs = std::filesystem;

namespace {

constexpr const char *cambiado = "el elemento cambió desde que se midió";

bool debajoDe(const std::string &ruta, const std::string &carpeta)
{
    return ruta.starts_with(carpeta + "/");
}

/// The `numero`-th name to try, the way the Finder resolves a clash: the time of day goes before the
/// extension, and a number after it where that name is taken too.
std::string nombreLibre(const std::string &nombre, Fecha fecha, unsigned numero)
{
    if (numero == 0) return nombre;
    const std::string hora = textoISO8601(fecha).substr(11, 8); // hh:mm:ss
    const fs::path partes(nombre);
    std::string libre = partes.stem().native() + " ";
    for (const char letra : hora)
        libre += letra == ':' ? '.' : letra;
    if (numero > 1) libre += " " + std::to_string(numero);
    return libre + partes.extension().native();
}

} // namespace

PapeleraSimulada::PapeleraSimulada(std::string hogar, const Reloj &reloj, RegistroMutaciones &registro)
    : m_hogar(std::move(hogar)), m_carpeta(m_hogar + "/.Trash"), m_reloj(reloj), m_registro(registro)
{
    fs::create_directories(m_carpeta);
    fs::permissions(m_carpeta, fs::perms::owner_all);
}

std::expected<Papelera::Medida, std::string> PapeleraSimulada::medir(const std::string &ruta)
{
    std::error_code error;
    const fs::path carpeta = fs::canonical(fs::path(ruta).parent_path(), error);
    if (error) return std::unexpected(textoErrno(error.value()));
    const auto ficha = fichar(ruta);
    if (!ficha) return std::unexpected(textoErrno(ENOENT));
    return Medida{ruta, carpeta.native(), ficha->identidad};
}

std::expected<void, std::string> PapeleraSimulada::reciclar(const Medida &medida)
{
    std::error_code error;
    if (fs::canonical(fs::path(medida.ruta).parent_path(), error) != medida.carpetaReal || error)
        return std::unexpected(cambiado);
    const std::string origen = medida.carpetaReal + "/" + fs::path(medida.ruta).filename().native();
    if (!debajoDe(origen, m_hogar)) return std::unexpected("está fuera del Mac simulado");
    if (origen == m_carpeta || debajoDe(origen, m_carpeta)) return std::unexpected("ya está en la Papelera");

    const Fecha fecha = m_reloj.ahora();
    const auto destino = mover(origen, medida.identidad, fecha);
    if (!destino) return std::unexpected(destino.error());
    m_registro.anotar({Mutacion::Clase::movimiento, medida.ruta, *destino});
    const std::lock_guard guardia{m_cerrojo};
    m_ocupantes.insert_or_assign(*destino, Ocupante{medida.ruta, fecha});
    return {};
}

std::expected<std::string, std::string> PapeleraSimulada::mover(const std::string &origen,
                                                                const Identidad &identidad, Fecha fecha) const
{
    const auto encontrado = fichar(origen);
    if (!encontrado || encontrado->identidad != identidad) return std::unexpected(cambiado);
    const std::string nombre = fs::path(origen).filename().native();
    for (unsigned numero = 0;; ++numero) {
        std::string destino = m_carpeta + "/" + nombreLibre(nombre, fecha, numero);
        if (::renameat2(AT_FDCWD, origen.c_str(), AT_FDCWD, destino.c_str(), RENAME_NOREPLACE) == 0) {
            if (const auto movido = fichar(destino); movido && movido->identidad == identidad) return destino;
            // Something else took its place in between: that goes back where it was.
            ::renameat2(AT_FDCWD, destino.c_str(), AT_FDCWD, origen.c_str(), RENAME_NOREPLACE);
            return std::unexpected(cambiado);
        }
        if (errno != EEXIST) return std::unexpected(textoErrno(errno));
    }
}

bool PapeleraSimulada::contiene(const std::string &ruta, Fecha desde)
{
    const auto segundo = std::chrono::floor<std::chrono::seconds>(desde);
    const std::lock_guard guardia{m_cerrojo};
    for (const auto &[destino, ocupante] : m_ocupantes)
        if (ocupante.rutaOriginal == ruta && ocupante.fecha >= segundo && fichar(destino)) return true;
    return false;
}

} // namespace ovanta
