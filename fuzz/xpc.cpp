#include "devices/XPC.h"
#include "core/Utf8.h"

#include <cstdint>
#include <cstdlib>

using namespace ovanta;

namespace {

/// Counts the values, each of which must be fit to be shown.
std::size_t contar(const ValorXPC &valor, int profundidad)
{
    if (profundidad > XPC::profundidadMaxima) std::abort();
    if (const auto *texto = valor.como<std::string>())
        if (!esUtf8(*texto) || texto->find('\0') != std::string::npos) std::abort();
    std::size_t cuantos = 1;
    if (const auto *lista = valor.como<ValorXPC::Lista>())
        for (const ValorXPC &uno : *lista)
            cuantos += contar(uno, profundidad + 1);
    if (const auto *mapa = valor.como<ValorXPC::Mapa>())
        for (const auto &[clave, uno] : *mapa) {
            if (!esUtf8(clave)) std::abort();
            cuantos += contar(uno, profundidad + 1);
        }
    return cuantos;
}

} // namespace

/// Any bytes give nothing, or a value that is not out of proportion to them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *datos, std::size_t tamano)
{
    const std::string_view bytes(reinterpret_cast<const char *>(datos), tamano);
    for (const std::size_t desde : {std::size_t{0}, XPC::bytesDePrefijo}) {
        std::size_t posicion = desde;
        const auto valor = XPC::valor(bytes, posicion);
        if (valor && (contar(*valor, 0) > (tamano + 1024) / 4 || posicion <= desde)) std::abort();
    }
    return 0;
}
