#include "core/Utf8.h"
#include "tests/devices/TuboDePrueba.h"

#include <cstdint>
#include <cstdlib>

using namespace ovanta;

/// Whatever the far end of a discovery says: it ends as soon as the bytes do, with services that can be shown
/// or an error, and the client answers nothing but settings.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *datos, std::size_t tamano)
{
    pruebas::TuboDePrueba tubo;
    tubo.entrada.assign(reinterpret_cast<const char *>(datos), tamano);
    const auto servicios = tubo.descubrir();
    const std::size_t saludos = DescubrimientoRSD::saludo().size();
    if (tubo.escritos.size() < saludos || tubo.escritos.size() > saludos + DescubrimientoRSD::tramasMaximas)
        std::abort();
    for (std::size_t i = saludos; i < tubo.escritos.size(); ++i)
        if (tubo.escritos[i] != http2::frame(http2::ajustes, http2::flagAck, 0, {})) std::abort();
    if (servicios)
        for (const auto &[nombre, puerto] : *servicios)
            if (!esUtf8(nombre)) std::abort();
    if (!servicios && servicios.error().errorDescription().empty()) std::abort();
    return 0;
}
