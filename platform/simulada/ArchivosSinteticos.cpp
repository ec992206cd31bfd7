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

Archivo abrirNuevo(const std::string &ruta)
{
    std::filesystem::create_directories(std::filesystem::path(ruta).parent_path());
    Archivo archivo(std::fopen(ruta.c_str(), "wbe"));
    if (!archivo) throw std::system_error(errno, std::generic_category(), ruta);
    return archivo;
}

} // namespace

void escribirTexto(const std::string &ruta, std::string_view texto)
{
    const Archivo archivo = abrirNuevo(ruta);
    const bool escrito = std::fwrite(texto.data(), 1, texto.size(), archivo.get()) == texto.size();
    if (!escrito || std::fflush(archivo.get()) != 0)
        throw std::system_error(errno, std::generic_category(), ruta);
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
