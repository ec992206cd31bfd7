#include "core/Historial.h"
#include "core/Utf8.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace ovanta;

/// Whatever the file held, what is read of it is within bounds, is written as valid UTF-8 and comes
/// back the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *datos, std::size_t cuantos)
{
    const auto historial = decodificarHistorial({reinterpret_cast<const char *>(datos), cuantos});
    if (historial.size() > maximoHistorial) std::abort();
    const auto escrito = codificarHistorial(historial);
    if (!esUtf8(escrito)) std::abort();
    const auto otraVez = decodificarHistorial(escrito);
    if (otraVez.size() != historial.size() || codificarHistorial(otraVez) != escrito) std::abort();
    return 0;
}
