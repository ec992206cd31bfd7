#include "core/Utf8.h"
#include "platform/linux/EntradaEscritorio.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace ovanta;

namespace {

void exigirMostrable(const std::string &texto)
{
    const bool deControl = std::ranges::any_of(texto, [](unsigned char c) { return c < 0x20 || c == 0x7f; });
    if (!esUtf8(texto) || deControl) std::abort();
}

} // namespace

/// Any bytes give nothing, or an entry with a name whose texts can be shown and whose order can be started.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *datos, std::size_t cuantos)
{
    const std::string_view bytes(reinterpret_cast<const char *>(datos), cuantos);
    const auto idiomas = idiomasDeEntrada(bytes.substr(0, 32));
    if (idiomas.size() > 4) std::abort();
    const auto entrada = leerEntrada(bytes, idiomas);
    if (!entrada) return 0;
    if (entrada->nombre.empty()) std::abort();
    for (const std::string *texto :
         {&entrada->nombre, &entrada->probar, &entrada->icono, &entrada->claseVentana})
        exigirMostrable(*texto);
    if (ordenSinArgumentos(*entrada).size() > entrada->orden.size()) std::abort();
    return 0;
}
