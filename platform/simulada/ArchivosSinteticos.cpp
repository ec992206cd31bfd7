#include "platform/simulada/ArchivosSinteticos.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <sys/stat.h>
#include <system_error>

namespace ovanta {

namespace {

struct CerrarArchivo
{
    void operator()(std::FILE *archivo) const { std::fclose(archivo); }
};
using Archivo = std::unique_ptr<std::FILE, CerrarArchivo>;

Archivo abrir(const std::string &ruta, const char *modo)
{
    Archivo archivo(std::fopen(ruta.c_str(), modo));
    if (!archivo) throw std::system_error(errno, std::generic_category(), ruta);
    return archivo;
}

Archivo abrirNuevo(const std::string &ruta)
{
    std::filesystem::create_directories(std::filesystem::path(ruta).parent_path());
    return abrir(ruta, "wbe");
}

void escribir(std::FILE *archivo, const std::string &ruta, std::string_view texto)
{
    const bool escrito = std::fwrite(texto.data(), 1, texto.size(), archivo) == texto.size();
    if (!escrito || std::fflush(archivo) != 0) throw std::system_error(errno, std::generic_category(), ruta);
}

} // namespace

void escribirTexto(const std::string &ruta, std::string_view texto)
{
    const Archivo archivo = abrirNuevo(ruta);
    escribir(archivo.get(), ruta, texto);
}

void escribirEn(const std::string &ruta, std::uint64_t posicion, std::string_view texto)
{
    const Archivo archivo = abrir(ruta, "r+be");
    if (::fseeko(archivo.get(), static_cast<off_t>(posicion), SEEK_SET) != 0)
        throw std::system_error(errno, std::generic_category(), ruta);
    escribir(archivo.get(), ruta, texto);
}

void reservarArchivo(const std::string &ruta, std::uint64_t bytes)
{
    const Archivo archivo = abrirNuevo(ruta);
    const int codigo = ::posix_fallocate(::fileno(archivo.get()), 0, static_cast<off_t>(bytes));
    if (codigo != 0) throw std::system_error(codigo, std::generic_category(), ruta);
}

void fechar(const std::string &ruta, Fecha fecha)
{
    const auto segundos = std::chrono::floor<std::chrono::seconds>(fecha);
    const timespec momento{segundos.time_since_epoch().count(),
                           std::chrono::nanoseconds(fecha - segundos).count()};
    const timespec momentos[]{momento, momento};
    if (::utimensat(AT_FDCWD, ruta.c_str(), momentos, AT_SYMLINK_NOFOLLOW) != 0)
        throw std::system_error(errno, std::generic_category(), ruta);
}

} // namespace ovanta
