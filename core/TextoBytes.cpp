#include "core/TextoBytes.h"

namespace ovanta {

namespace {

/// A number in units of one tenth or one hundredth, as `cifras` says.
struct Redondeado
{
    std::uint64_t entero = 0;
    std::uint64_t fraccion = 0;
    std::size_t cifras = 0;
};

Redondeado dividir(std::uint64_t bytes, std::uint64_t unidad, std::size_t cifras)
{
    const std::uint64_t escala = cifras == 1 ? 10 : 100;
    const std::uint64_t fraccion = (bytes % unidad * escala + unidad / 2) / unidad;
    return {bytes / unidad + fraccion / escala, fraccion % escala, cifras};
}

std::string textoDecimal(const Redondeado &numero, const FormaNumeros &forma)
{
    std::string cifras = std::to_string(numero.fraccion);
    cifras.insert(0, numero.cifras - cifras.size(), '0');
    cifras.erase(cifras.find_last_not_of('0') + 1);
    const std::string entero = textoEntero(numero.entero, forma);
    return cifras.empty() ? entero : entero + forma.decimal + cifras;
}

} // namespace

std::string textoEntero(std::uint64_t numero, const FormaNumeros &forma)
{
    std::string texto = std::to_string(numero);
    if (texto.size() < forma.cifrasParaAgrupar) return texto;
    for (std::size_t i = texto.size(); i > 3;)
        texto.insert(i -= 3, forma.grupo);
    return texto;
}

std::string textoBytes(std::uint64_t bytes, EstiloBytes estilo, const FormaNumeros &forma)
{
    if (bytes == 0) return "0 GB";
    const std::uint64_t kilo = estilo == EstiloBytes::archivo ? 1000 : 1024;
    const std::uint64_t mega = kilo * kilo;
    const Redondeado megas = dividir(bytes, mega, 1);
    if (megas.entero < kilo) return textoDecimal(megas, forma) + " MB";
    return textoDecimal(dividir(bytes, mega * kilo, 2), forma) + " GB";
}

} // namespace ovanta
