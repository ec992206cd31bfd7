#include "platform/linux/EntradaAutostart.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>

using namespace ovanta;

/// Whatever lies in the autostart folder: other groups decide nothing, and the first value
/// of a key holds. Whatever the program is called: its entry starts it, on one line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *datos, std::size_t tamano)
{
    const std::string texto(reinterpret_cast<const char *>(datos), tamano);
    const bool arranca = arrancaConLaSesion(texto);
    if (arrancaConLaSesion(texto + "\n[Otro]\nExec=x\nHidden=true\n") != arranca) std::abort();
    if (arrancaConLaSesion("[Desktop Entry]\nHidden=true\n" + texto)) std::abort();

    if (const auto entrada = entradaQueArranca("/" + texto)) {
        if (!arrancaConLaSesion(*entrada)) std::abort();
        if (std::ranges::count(*entrada, '\n') != 9) std::abort();
    }
    return 0;
}
