#include "core/InterpretarDu.h"

#include "core/Rutas.h"
#include "core/Tamano.h"

#include <charconv>
#include <limits>

namespace ovanta {

std::optional<std::uint64_t> interpretarDu(std::string_view salida)
{
    constexpr std::uint64_t kibibyte = 1024;
    const std::string_view numero = recortarBlancos(salida.substr(0, salida.find('\t')));
    std::uint64_t kibibytes = 0;
    const char *fin = numero.data() + numero.size();
    const auto [hasta, fallo] = std::from_chars(numero.data(), fin, kibibytes);
    if (fallo != std::errc{} || hasta != fin) return std::nullopt;
    if (kibibytes > std::numeric_limits<std::uint64_t>::max() / kibibyte) return std::nullopt;
    return multiplicar(kibibytes, kibibyte);
}

} // namespace ovanta
