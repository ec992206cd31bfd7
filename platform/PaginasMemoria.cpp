#include "platform/PaginasMemoria.h"

#include "core/Tamano.h"

namespace ovanta {

MemoriaSistema::Lectura categoriasDeMemoria(const PaginasMemoria &paginas, std::uint64_t tamanoPagina)
{
    const auto bytes = [tamanoPagina](std::uint64_t cuantas) { return multiplicar(cuantas, tamanoPagina); };
    const bool hayDeProgramas = paginas.internalPageCount > paginas.purgeableCount;
    MemoriaSistema::Lectura lectura;
    lectura.apps = hayDeProgramas ? bytes(paginas.internalPageCount - paginas.purgeableCount) : 0;
    lectura.wired = bytes(paginas.wireCount);
    lectura.comprimida = bytes(paginas.compressorPageCount);
    lectura.cache = bytes(sumar(paginas.externalPageCount, paginas.purgeableCount));
    lectura.libre = bytes(paginas.freeCount);
    lectura.swapouts = paginas.swapouts;
    return lectura;
}

MemoriaSistema::Nivel nivelDeMemorystatus(std::int32_t nivel)
{
    switch (nivel) {
    case 2:
        return MemoriaSistema::Nivel::tension;
    case 4:
        return MemoriaSistema::Nivel::critico;
    default:
        return MemoriaSistema::Nivel::normal;
    }
}

} // namespace ovanta
