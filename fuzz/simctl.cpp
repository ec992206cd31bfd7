#include "developer/ListaSimctl.h"

#include "core/Utf8.h"

#include <cstdint>
#include <cstdlib>

using namespace ovanta;

/// Whatever the tool printed: it is refused or gives simulators that can be shown, and no folder lies
/// outside the one that was given.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *datos, std::size_t tamano)
{
    const std::string_view texto(reinterpret_cast<const char *>(datos), tamano);
    try {
        for (const Simulador &uno : interpretarSimctl(texto)) {
            if (!esUtf8(uno.id) || !esUtf8(uno.nombre) || !esUtf8(uno.estado) || !esUtf8(uno.runtime))
                std::abort();
            const auto carpeta = carpetaDeSimulador("/r", uno.id);
            if (carpeta && (carpeta->rfind('/') != 2 || *carpeta == "/r/" || *carpeta == "/r/.." ||
                            carpeta->find('\0') != std::string::npos))
                std::abort();
        }
    } catch (const ErrorDeSimctl &) {
    }
    for (const auto &[id, bytes] : interpretarTamanos(texto))
        if (bytes % 1024 != 0) std::abort();
    return 0;
}
