#include "bench/Bancos.h"
#include "bench/Cronometro.h"
#include "core/LeerArchivo.h"
#include "core/plist/LeerPlist.h"

#include <cstdio>
#include <cstdlib>

namespace ovanta {

/// `plist FILE [rounds]`: our reader on a property list in XML or binary, in processor time, the median of
/// the rounds. What was read is dropped within the time, as with the peer.
int bancoPlist(int argc, char **argv)
{
    if (argc < 2) return 2;
    constexpr std::uint64_t maximo = 32 * 1024 * 1024;
    const auto bytes = leerArchivo(argv[1], maximo, EnlaceFinal::seguir);
    const int tandas = std::max(1, argc > 2 ? std::atoi(argv[2]) : 15);
    std::vector<double> tiempos;
    for (int i = 0; i < tandas; ++i) {
        const double antes = procesadorUs();
        if (!leerPlist(bytes)) return 1;
        tiempos.push_back(procesadorUs() - antes);
    }
    const double us = mediana(std::move(tiempos));
    std::printf("{\"formato\":\"%s\",\"bytes\":%zu,\"us\":%.1f,\"mb_s\":%.2f}\n",
                bytes.starts_with("bplist") ? "binario" : "xml", bytes.size(), us,
                static_cast<double>(bytes.size()) / us);
    return 0;
}

} // namespace ovanta
