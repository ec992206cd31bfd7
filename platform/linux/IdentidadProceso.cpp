#include "platform/linux/IdentidadProceso.h"

#include "core/Descriptor.h"
#include "platform/linux/LecturaRepetida.h"
#include "platform/linux/LineasProc.h"

#include <sys/syscall.h>
#include <unistd.h>

namespace ovanta {

std::string leerDeProceso(const std::string &proc, std::int32_t pid, std::string_view nombre)
{
    std::string ruta = proc + '/' + std::to_string(pid) + '/';
    std::string lugar;
    const std::size_t cuanto = LecturaRepetida{ruta.append(nombre)}.leerEntero(lugar).size();
    lugar.resize(cuanto);
    return lugar;
}

std::optional<std::uint64_t> inicioDe(const std::string &proc, std::int32_t pid)
{
    const std::string texto = leerDeProceso(proc, pid, "stat");
    const auto linea = interpretarLineaStat(texto);
    return linea ? std::optional{linea->inicio} : std::nullopt;
}

std::int32_t padreDe(const std::string &proc, std::int32_t pid)
{
    const std::string texto = leerDeProceso(proc, pid, "stat");
    const auto linea = interpretarLineaStat(texto);
    return linea ? linea->padre : 0;
}

bool sigueVivo(const std::string &proc, std::int32_t pid, std::uint64_t inicio)
{
    if (pid <= 0) return false;
    const std::string texto = leerDeProceso(proc, pid, "stat");
    const auto linea = interpretarLineaStat(texto);
    return linea && !linea->acabado() && linea->inicio == inicio;
}

bool senalarSiEs(const std::string &proc, std::int32_t pid, std::uint64_t inicio, int senal)
{
    if (pid <= 1) return false;
    const Descriptor proceso{static_cast<int>(::syscall(SYS_pidfd_open, pid, 0U))};
    if (!proceso.abierto() || !sigueVivo(proc, pid, inicio)) return false;
    return ::syscall(SYS_pidfd_send_signal, proceso.numero(), senal, nullptr, 0U) == 0;
}

} // namespace ovanta
