#include "platform/linux/TamanosPapelera.h"

#include "core/ErrorSistema.h"
#include "core/EscrituraAtomica.h"
#include "core/LeerArchivo.h"
#include "core/Tamano.h"
#include "platform/linux/InfoPapelera.h"
#include "platform/linux/SinEnlaces.h"

#include <fcntl.h>
#include <stdio.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <optional>
#include <set>
#include <string_view>

namespace ovanta {

namespace {

constexpr const char *archivo = "directorysizes";
constexpr std::uint64_t bytesPorBloque = 512; // of st_blocks, whatever the file system

/// Disk usage of a folder and all below it in bytes, a file with several names counted once, as
/// `du` does; nothing where a part cannot be seen.
std::optional<std::uint64_t> usoEnDisco(const std::string &carpeta)
{
    namespace fs = std::filesystem;
    std::set<std::uint64_t> contados;
    std::uint64_t bytes = multiplicar(estadoDe(AT_FDCWD, carpeta).st_blocks, bytesPorBloque);
    std::size_t entradas = 0;
    std::error_code error;
    for (fs::recursive_directory_iterator i(carpeta, error), fin; !error && i != fin; i.increment(error)) {
        const struct stat estado = estadoDe(AT_FDCWD, i->path().string());
        if (++entradas > maximoDeEntradas) return std::nullopt;
        if (estado.st_nlink > 1 && !S_ISDIR(estado.st_mode) && !contados.insert(estado.st_ino).second)
            continue;
        bytes = sumar(bytes, multiplicar(static_cast<std::uint64_t>(estado.st_blocks), bytesPorBloque));
    }
    return error ? std::nullopt : std::optional(bytes);
}

/// What the file holds; empty where there is none yet.
std::string listaAnterior(int raiz)
try {
    return leerArchivo(raiz, archivo, maximoDeTamanos, EnlaceFinal::rechazar);
} catch (const ErrorDeLectura &error) {
    if (error.codigo() != ENOENT) throw;
    return {};
}

/// `texto` without the lines for `codificado`.
std::string sinLineaDe(std::string_view texto, const std::string &codificado)
{
    std::string resto;
    while (!texto.empty()) {
        const std::size_t fin = std::min(texto.find('\n'), texto.size());
        const std::string_view linea = texto.substr(0, fin);
        texto.remove_prefix(std::min(fin + 1, texto.size()));
        const bool suya = linea.ends_with(" " + codificado);
        if (!linea.empty() && !suya) resto.append(linea).append("\n");
    }
    return resto;
}

/// Writes the whole file beside and puts it in the place of the old one.
void reemplazar(int raiz, const std::string &texto, const AlPaso &alPaso)
{
    const std::string aparte =
        std::string(archivo) + "." + std::to_string(::getpid()) + "." + std::to_string(::gettid());
    const Descriptor nuevo(
        ::openat(raiz, aparte.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!nuevo.abierto()) lanzarErrno(errno);
    try {
        if (const int codigo = escribirTodo(nuevo.numero(), texto)) lanzarErrno(codigo);
        if (alPaso) alPaso(PasoPapelera::tamanoAparte);
        if (::renameat(raiz, aparte.c_str(), raiz, archivo) != 0) lanzarErrno(errno);
    } catch (const std::system_error &) {
        ::unlinkat(raiz, aparte.c_str(), 0);
        throw;
    }
    if (alPaso) alPaso(PasoPapelera::tamanoAnotado);
}

} // namespace

void anotarTamano(const CarpetaPapelera &papelera, const std::string &nombre, const AlPaso &alPaso)
try {
    const std::string archivos = "/proc/self/fd/" + std::to_string(papelera.archivos.numero());
    const auto bytes = usoEnDisco(archivos + "/" + nombre);
    if (!bytes) return;
    const std::string anterior = listaAnterior(papelera.raiz.numero());
    const auto info = estadoDe(papelera.infos.numero(), nombre + std::string(finDeInfo));
    const std::string codificado = codificarPorcentaje(nombre);
    std::string texto = sinLineaDe(anterior, codificado);
    texto.append(std::to_string(*bytes)).append(" ").append(std::to_string(info.st_mtim.tv_sec));
    texto.append(" ").append(codificado).append("\n");
    reemplazar(papelera.raiz.numero(), texto, alPaso);
} catch (const std::exception &) {
    // The move has succeeded; without the entry others measure the folder themselves.
}

} // namespace ovanta
