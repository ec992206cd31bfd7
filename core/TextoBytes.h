#pragma once

#include <cstdint>
#include <string>

namespace ovanta {

/// How a language writes its numbers. The default is the Spanish of Spain.
struct FormaNumeros
{
    std::string decimal = ",";
    std::string grupo = ".";
    /// Whole parts with fewer digits than this are not split into groups of three.
    std::size_t cifrasParaAgrupar = 5;
};

/// Files and volumes count 1000 bytes to the kilobyte, memory counts 1024.
enum class EstiloBytes { archivo, memoria };

/// A size for the user: "0 GB" for nothing, otherwise MB with at most one decimal or GB with at most
/// two, whichever the size reaches, without trailing zeros. Below one MB it is still in MB. Halves
/// round up, and what rounds to a whole GB of MB is written in GB.
std::string textoBytes(std::uint64_t bytes, EstiloBytes estilo = EstiloBytes::archivo,
                       const FormaNumeros &forma = {});

/// A whole number with its groups.
std::string textoEntero(std::uint64_t numero, const FormaNumeros &forma = {});

} // namespace ovanta
