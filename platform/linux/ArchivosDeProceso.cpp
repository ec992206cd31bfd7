#include "platform/linux/ArchivosDeProceso.h"

#include "core/Descriptor.h"
#include "platform/linux/LineasProc.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <climits>
#include <ctime>
#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace ovanta {

namespace {

/// "123/stat", relative to the folder of the processes; "123" without a file.
class RutaDeProceso
{
public:
    RutaDeProceso(std::int32_t pid, std::string_view archivo)
    {
        char *fin = std::to_chars(m_texto, m_texto + 16, pid).ptr;
        if (!archivo.empty()) *fin++ = '/';
        *std::ranges::copy(archivo, fin).out = '\0';
    }
    operator const char *() const { return m_texto; }

private:
    char m_texto[32];
};

/// Nothing for a target that fills its place, as it was cut.
std::string_view destino(int carpeta, const char *enlace, std::span<char> lugar)
{
    const ssize_t largo = ::readlinkat(carpeta, enlace, lugar.data(), lugar.size());
    if (largo <= 0 || static_cast<std::size_t>(largo) == lugar.size()) return {};
    return {lugar.data(), static_cast<std::size_t>(largo)};
}

} // namespace

std::string_view leerDeProceso(int proc, std::int32_t pid, std::string_view archivo, std::span<char> lugar)
{
    const Descriptor descriptor(::openat(proc, RutaDeProceso(pid, archivo), O_RDONLY | O_CLOEXEC));
    if (!descriptor.abierto()) return {};
    const ssize_t leidos = ::read(descriptor.numero(), lugar.data(), lugar.size());
    return {lugar.data(), leidos > 0 ? static_cast<std::size_t>(leidos) : 0};
}

std::string programaDeProceso(int proc, std::int32_t pid, std::string_view comm)
{
    std::array<char, PATH_MAX> lugar;
    const std::string_view ruta = rutaDeExe(destino(proc, RutaDeProceso(pid, "exe"), lugar));
    if (!ruta.empty()) return std::string(ruta);
    const std::string_view nombrado = programaDeCmdline(leerDeProceso(proc, pid, "cmdline", lugar));
    return std::string(!nombrado.empty() && nombrado.size() < lugar.size() ? nombrado : comm);
}

std::uint32_t uidDeProceso(int proc, std::int32_t pid)
{
    // The folder's owner: its files belong to root where the program may not be looked into.
    struct stat datos;
    const bool hay = ::fstatat(proc, RutaDeProceso(pid, {}), &datos, AT_SYMLINK_NOFOLLOW) == 0;
    return hay ? datos.st_uid : 0;
}

bool esProcPropio(int proc)
{
    struct statfs volumen;
    if (::fstatfs(proc, &volumen) != 0 || volumen.f_type != PROC_SUPER_MAGIC) return false;
    std::array<char, 32> lugar;
    return destino(proc, "self", lugar) == std::to_string(::getpid());
}

std::optional<std::uint64_t> relojDeProceso(std::int32_t pid)
{
    // CPUCLOCK_SCHED of a whole process: include/linux/posix-timers_types.h. The library's way to the
    // same number asks the kernel once more.
    constexpr std::uint32_t deTodoElProceso = 2;
    const auto reloj = static_cast<clockid_t>((~static_cast<std::uint32_t>(pid) << 3) | deTodoElProceso);
    timespec tiempo;
    if (::clock_gettime(reloj, &tiempo) != 0) return std::nullopt;
    return static_cast<std::uint64_t>(tiempo.tv_sec) * 1'000'000'000 +
           static_cast<std::uint64_t>(tiempo.tv_nsec);
}

} // namespace ovanta
