#include "core/RegistroPrevio.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <set>

using namespace ovanta;

/// Whatever a record holds, each move in it is told once, and a line that is added at its end is
/// understood if the bytes before it end a line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *datos, std::size_t cuantos)
{
    const std::string bytes(reinterpret_cast<const char *>(datos), cuantos);
    const auto previos = interpretarRegistro(bytes);
    std::set<std::string> vistos;
    for (const auto &previo : previos)
        if (!vistos.insert(previo.movimiento.id).second) std::abort();
    const std::string linea =
        R"({"intento":{"id":"00000000-0000-4000-8000-F00000000000","ruta":"/a","bytes":1,)"
        R"("fecha":"2026-11-21T05:18:36Z","regla":"r"},"identidad":[1,2,3]})";
    const auto conUna = interpretarRegistro(bytes + "\n" + linea);
    const bool estaba = vistos.contains("00000000-0000-4000-8000-F00000000000");
    if (conUna.size() != previos.size() + (estaba ? 0 : 1)) std::abort();
    return 0;
}
