#include "platform/linux/ListaDePids.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstring>
#include <dirent.h>
#include <unistd.h>

namespace ovanta {

namespace {

constexpr std::size_t lugarDeNombres = 32768;

/// 0 for a name that is no pid.
std::int32_t pidDeNombre(const char *nombre)
{
    std::int32_t pid = 0;
    const char *const fin = nombre + std::strlen(nombre);
    const auto [hasta, error] = std::from_chars(nombre, fin, pid);
    return error == std::errc{} && hasta == fin && pid > 0 ? pid : 0;
}

} // namespace

void listarPids(int proc, std::vector<EntradaDePid> &entradas)
{
    entradas.clear();
    if (::lseek(proc, 0, SEEK_SET) < 0) return;
    alignas(dirent64) char lugar[lugarDeNombres];
    ssize_t leidos = 0;
    while ((leidos = ::getdents64(proc, lugar, sizeof lugar)) > 0) {
        for (ssize_t i = 0; i < leidos;) {
            const auto *entrada = reinterpret_cast<const dirent64 *>(lugar + i);
            if (const std::int32_t pid = pidDeNombre(entrada->d_name); pid != 0)
                entradas.push_back({pid, entrada->d_ino});
            i += entrada->d_reclen;
        }
    }
    // The kernel lists them by pid; any other folder does not.
    if (!std::ranges::is_sorted(entradas, {}, &EntradaDePid::pid))
        std::ranges::sort(entradas, {}, &EntradaDePid::pid);
}

} // namespace ovanta
