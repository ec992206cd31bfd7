#include "platform/linux/InterpretarContadores.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

using namespace ovanta;

/// Whatever /proc shows: no reading depends on what follows its line, and the sums over two halves of the
/// interfaces are the sum over all.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *datos, std::size_t tamano)
{
    const std::string_view texto(reinterpret_cast<const char *>(datos), tamano);
    if (interpretarStat(texto) != interpretarStat(texto.substr(0, texto.find('\n')))) std::abort();

    const auto todas = interpretarNetDev(texto, [](std::string_view) { return true; });
    const auto unas = interpretarNetDev(texto, nombreDeTarjeta);
    const auto otras = interpretarNetDev(texto, [](std::string_view i) { return !nombreDeTarjeta(i); });
    if (todas != Contadores::Red{unas.entrada + otras.entrada, unas.salida + otras.salida}) std::abort();
    return 0;
}
