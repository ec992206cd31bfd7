#include "core/plist/EscribirPlist.h"
#include "core/plist/LeerPlist.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace ovanta;

/// Whatever the bytes are, reading them ends. What was read and can be written comes back: the XML of it is
/// read, and written again is the same. (Only dates lose their fraction of a second on the way.)
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *datos, std::size_t cuantos)
{
    const std::string_view bytes{reinterpret_cast<const char *>(datos), cuantos};
    const auto valor = leerPlist(bytes, {.objetos = 5000, .bytes = 1 << 20}); // so that many lists are tried
    if (!valor) {
        if (valor.error().motivo.empty()) std::abort();
        return 0;
    }
    const auto xml = escribirPlistXml(*valor);
    if (!xml) return 0;
    const auto otraVez =
        leerPlist(*xml, {.profundidad = 64, .objetos = ~std::size_t{0}, .bytes = ~std::size_t{0}});
    if (!otraVez || escribirPlistXml(*otraVez) != *xml) std::abort();
    return 0;
}
