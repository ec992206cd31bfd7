#include "core/Utf8.h"
#include "devices/ListaDevicectl.h"

#include <cstdint>
#include <cstdlib>

using namespace ovanta;

/// Whatever the tool wrote: it is refused, or gives devices that can be shown and an address.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *datos, std::size_t tamano)
{
    const auto resultado =
        CoreDevice::resultadoDe(std::string_view(reinterpret_cast<const char *>(datos), tamano));
    if (!resultado) return 0;
    if (!resultado->is_object()) std::abort();
    for (const CoreDevice::Dispositivo &uno : CoreDevice::dispositivosDe(*resultado)) {
        for (const auto &texto : {uno.nombre, uno.modelo, uno.marketing, uno.clase, uno.version})
            if (texto && !esUtf8(*texto)) std::abort();
        if (!esUtf8(uno.id) || !esUtf8(uno.udid) || (uno.transporte != "Wi-Fi" && uno.transporte != "cable"))
            std::abort();
    }
    const auto direccion = CoreDevice::direccionDe(*resultado);
    if (direccion && !esUtf8(*direccion)) std::abort();
    return 0;
}
