#include "platform/linux/LineaDeOrdenes.h"
#include "platform/linux/MaquinaVirtual.h"
#include "platform/linux/OrigenProceso.h"
#include "platform/linux/ProgramasConocidos.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace ovanta;

/// The texts that /proc gives of a process, which another program can choose: none of them misleads the
/// readers into more than it says.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *datos, std::size_t cuantos)
{
    const std::string_view bytes(reinterpret_cast<const char *>(datos), cuantos);
    const OrigenProceso origen = origenDe(bytes, bytes.substr(0, 16));
    if (bytes.find(origen.grupo) == bytes.npos || origen.id.size() > bytes.size()) std::abort();
    if (origen.clase == OrigenProceso::Clase::aplicacion && (origen.id.empty() || origen.grupo.empty()))
        std::abort();
    const auto palabras = palabrasDeLinea(bytes);
    if (palabras.size() > 1000) std::abort();
    if (const auto nombre = nombreDeMaquina(palabras); nombre && nombre->empty()) std::abort();
    if (guionDe(palabras).starts_with('-')) std::abort();
    if (const auto valor = variableDe(bytes, "A"); valor && valor->find('\0') != valor->npos) std::abort();
    const std::string carpeta = carpetaDeInstalacion(bytes, "/home/ana");
    if (!bytes.starts_with(carpeta)) std::abort();
    return 0;
}
