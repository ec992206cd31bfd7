#include "core/ErrorSistema.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

namespace ovanta {
namespace {

constexpr auto textos = std::to_array<std::pair<int, const char *>>({
    {EPERM, "el sistema no permite esta operación"},
    {ENOENT, "ya no existe"},
    {EINTR, "la operación se interrumpió"},
    {EIO, "el disco dio un error al leer o escribir"},
    {ENXIO, "el dispositivo ya no está"},
    {E2BIG, "la lista de argumentos es demasiado larga"},
    {ENOEXEC, "el archivo no es un programa que se pueda ejecutar"},
    {EBADF, "el archivo ya no está abierto"},
    {ECHILD, "el proceso ya no existe"},
    {EAGAIN, "el sistema no tiene recursos libres en este momento"},
    {ENOMEM, "no queda memoria libre"},
    {EACCES, "no tienes permiso"},
    {EBUSY, "está en uso"},
    {EEXIST, "ya existe"},
    {EXDEV, "está en otro volumen"},
    {ENODEV, "el dispositivo ya no está"},
    {ENOTDIR, "una parte de la ruta no es una carpeta"},
    {EISDIR, "es una carpeta"},
    {EINVAL, "el sistema no acepta esta petición"},
    {ENFILE, "el sistema tiene demasiados archivos abiertos"},
    {EMFILE, "el programa tiene demasiados archivos abiertos"},
    {ETXTBSY, "el programa se está modificando en este momento"},
    {EFBIG, "el archivo es demasiado grande"},
    {ENOSPC, "no queda espacio en el disco"},
    {EROFS, "el disco es de solo lectura"},
    {EMLINK, "tiene demasiados enlaces"},
    {EPIPE, "el otro lado cerró la conexión"},
    {ENAMETOOLONG, "el nombre es demasiado largo"},
    {ENOSYS, "el sistema no ofrece esta operación"},
    {ENOTEMPTY, "la carpeta no está vacía"},
    {ELOOP, "hay un enlace simbólico donde no puede haberlo"},
    {EOVERFLOW, "el valor es demasiado grande"},
    {EOPNOTSUPP, "el volumen no admite esta operación"},
    {ECONNREFUSED, "se rechazó la conexión"},
    {ECONNRESET, "se cortó la conexión"},
    {ETIMEDOUT, "no hubo respuesta a tiempo"},
    {ESTALE, "la unidad de red ya no responde por este archivo"},
    {EDQUOT, "se agotó tu cuota de disco"},
    {ECANCELED, "la operación se canceló"},
});

class CategoriaErrno final : public std::error_category
{
public:
    const char *name() const noexcept override { return "ovanta-errno"; }
    std::string message(int codigo) const override { return textoErrno(codigo); }
    std::error_condition default_error_condition(int codigo) const noexcept override
    {
        return {codigo, std::generic_category()};
    }
};

} // namespace

std::string textoErrno(int codigo)
{
    const auto it = std::ranges::find(textos, codigo, &std::pair<int, const char *>::first);
    if (it != textos.end()) return it->second;
    return "error del sistema " + std::to_string(codigo);
}

void lanzarErrno(int codigo)
{
    static const CategoriaErrno categoria;
    throw std::system_error(codigo, categoria);
}

} // namespace ovanta
