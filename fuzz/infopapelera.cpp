#include "platform/linux/InfoPapelera.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

using namespace ovanta;

/// Whatever an info file holds: what is read from it has no zero byte, and written again it reads the
/// same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *datos, std::size_t tamano)
{
    const std::string_view texto(reinterpret_cast<const char *>(datos), tamano);
    const auto info = leerInfo(texto);
    if (info) {
        if (info->ruta.empty() || info->ruta.find('\0') != std::string::npos) std::abort();
        if (leerInfo(escribirInfo(*info)) != info) std::abort();
    }
    const auto bytes = decodificarPorcentaje(texto);
    if (bytes && decodificarPorcentaje(codificarPorcentaje(*bytes)) != bytes &&
        bytes->find('\0') == std::string::npos)
        std::abort();
    return 0;
}
