#include "platform/linux/Meminfo.h"

#include "core/Tamano.h"
#include "platform/linux/Renglones.h"

#include <initializer_list>

namespace ovanta {

namespace {

struct Campo
{
    std::string_view clave;
    std::uint64_t Meminfo::*destino;
};

constexpr Campo campos[] = {
    {"MemTotal", &Meminfo::memTotal},
    {"MemFree", &Meminfo::memFree},
    {"MemAvailable", &Meminfo::memAvailable},
    {"Buffers", &Meminfo::buffers},
    {"Cached", &Meminfo::cached},
    {"SwapTotal", &Meminfo::swapTotal},
    {"SwapFree", &Meminfo::swapFree},
    {"Zswap", &Meminfo::zswap},
    {"AnonPages", &Meminfo::anonPages},
    {"Shmem", &Meminfo::shmem},
    {"SReclaimable", &Meminfo::sReclaimable},
    {"SUnreclaim", &Meminfo::sUnreclaim},
    {"KernelStack", &Meminfo::kernelStack},
    {"PageTables", &Meminfo::pageTables},
    {"Percpu", &Meminfo::percpu},
    {"Mlocked", &Meminfo::mlocked},
};

std::uint64_t suma(std::initializer_list<std::uint64_t> partes)
{
    std::uint64_t total = 0;
    for (const std::uint64_t parte : partes)
        total = sumarConTope(total, parte);
    return total;
}

} // namespace

std::uint64_t Meminfo::apps() const
{
    return suma({anonPages, shmem});
}

std::uint64_t Meminfo::wired() const
{
    return suma({sUnreclaim, kernelStack, pageTables, percpu, mlocked});
}

std::uint64_t Meminfo::cache() const
{
    return suma({restarHastaCero(cached, shmem), buffers, sReclaimable});
}

std::uint64_t Meminfo::swapUsado() const
{
    return restarHastaCero(swapTotal, swapFree);
}

std::optional<Meminfo> interpretarMeminfo(std::string_view texto)
{
    Meminfo memoria;
    bool diceDisponible = false;
    while (!texto.empty()) {
        std::string_view linea = cortar(texto, '\n');
        const std::string_view clave = cortar(linea, ':');
        const auto *campo = std::ranges::find(campos, clave, &Campo::clave);
        if (campo == std::end(campos)) continue;
        memoria.*(campo->destino) = multiplicarConTope(numero(linea).value_or(0), 1024);
        diceDisponible = diceDisponible || campo->destino == &Meminfo::memAvailable;
    }
    if (memoria.memTotal == 0) return std::nullopt;
    if (!diceDisponible)
        memoria.memAvailable = std::min(sumarConTope(memoria.memFree, memoria.cache()), memoria.memTotal);
    return memoria;
}

} // namespace ovanta
