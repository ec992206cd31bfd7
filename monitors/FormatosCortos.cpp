#include "monitors/FormatosCortos.h"

#include <charconv>
#include <cmath>

namespace ovanta {

namespace {

/// Fixed notation with a point, whatever the locale of the process.
std::string conDecimales(double valor, int decimales)
{
    std::string texto(32, '\0');
    const auto [fin, error] =
        std::to_chars(texto.data(), texto.data() + texto.size(), valor, std::chars_format::fixed, decimales);
    if (error != std::errc{}) return "0";
    texto.resize(static_cast<std::size_t>(fin - texto.data()));
    return texto;
}

} // namespace

std::string formatearBytesCorto(std::uint64_t bytes)
{
    const double gigas = static_cast<double>(bytes) / 1e9;
    if (gigas >= 10.0) return conDecimales(std::round(gigas), 0) + " GB";
    return conDecimales(gigas, 1) + " GB";
}

std::string formatearVelocidadCorta(double bytesPorSegundo)
{
    if (bytesPorSegundo >= 1e6)
        return conDecimales(bytesPorSegundo / 1e6, bytesPorSegundo >= 1e7 ? 0 : 1) + "M";
    return conDecimales(std::trunc(bytesPorSegundo / 1000.0), 0) + "K";
}

} // namespace ovanta
