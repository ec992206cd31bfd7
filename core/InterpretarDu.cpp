#include "core/InterpretarDu.h"

#include "core/Tamano.h"

#include <charconv>
#include <limits>

namespace ovanta {

namespace {

std::string_view sinBlancos(std::string_view texto)
{
    const auto primero = texto.find_first_not_of(" \t");
    if (primero == std::string_view::npos) return {};
    return texto.substr(primero, texto.find_last_not_of(" \t") - primero + 1);
}

} // namespace

std::optional<std::uint64_t> interpretarDu(std::string_view salida)
{
    constexpr std::uint64_t kibibyte = 1024;
    const std::string_view numero = sinBlancos(salida.substr(0, salida.find('\t')));
    std::uint64_t kibibytes = 0;
    const char *fin = numero.data() + numero.size();
    const auto [hasta, fallo] = std::from_chars(numero.data(), fin, kibibytes);
    if (fallo != std::errc{} || hasta != fin) return std::nullopt;
    if (kibibytes > std::numeric_limits<std::uint64_t>::max() / kibibyte) return std::nullopt;
    return multiplicar(kibibytes, kibibyte);
}

} // namespace ovanta
