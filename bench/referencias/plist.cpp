// The common library's reading of the same property list, in processor time, the median of the rounds.
#include "bench/Cronometro.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <plist/plist.h>
#include <string>

int main(int argc, char **argv)
{
    if (argc < 2) return 2;
    std::ifstream archivo(argv[1], std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(archivo), {}};
    const int tandas = std::max(1, argc > 2 ? std::atoi(argv[2]) : 15);
    std::vector<double> tiempos;
    for (int i = 0; i < tandas; ++i) {
        const double antes = ovanta::procesadorUs();
        plist_t lista = nullptr;
        if (plist_is_binary(bytes.data(), static_cast<uint32_t>(bytes.size())) != 0)
            plist_from_bin(bytes.data(), static_cast<uint32_t>(bytes.size()), &lista);
        else
            plist_from_xml(bytes.data(), static_cast<uint32_t>(bytes.size()), &lista);
        if (!lista) return 1;
        plist_free(lista);
        tiempos.push_back(ovanta::procesadorUs() - antes);
    }
    const double us = ovanta::mediana(std::move(tiempos));
    std::printf("{\"bytes\":%zu,\"us\":%.1f,\"mb_s\":%.2f}\n", bytes.size(), us,
                static_cast<double>(bytes.size()) / us);
    return 0;
}
