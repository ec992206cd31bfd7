#include "devices/XPC.h"
#include "bench/Bancos.h"
#include "bench/Cronometro.h"
#include "tests/devices/BytesXPC.h"

#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace ovanta {
namespace {

/// A device's list of services, ten times as long as a real one.
std::string mensaje()
{
    std::vector<std::pair<std::string, std::string>> servicios;
    for (int i = 0; i < 1000; ++i)
        servicios.emplace_back("com.apple.servicio.de.prueba." + std::to_string(i),
                               pruebas::xpcServicio(std::to_string(50'000 + i)));
    return pruebas::xpcSaludo(pruebas::xpcMapa(servicios));
}

} // namespace

/// `xpc [rounds]`: decoding a list of services, in MB a second, against copying its bytes one by one.
int bancoXpc(int argc, char **argv)
{
    const int tandas = std::max(1, argc > 1 ? std::atoi(argv[1]) : 15);
    constexpr int porTanda = 50;
    const std::string bytes = mensaje();
    const auto descifrar = [&bytes] {
        std::size_t posicion = 0;
        if (!XPC::valor(bytes, posicion)) throw std::runtime_error("no se entiende el mensaje");
    };
    std::string copia(bytes.size(), '\0');
    const auto copiar = [&bytes, &copia] {
        volatile char *destino = copia.data();
        for (std::size_t i = 0; i < bytes.size(); ++i)
            destino[i] = bytes[i];
    };
    const auto [nuestra, ajena] = compararPorTandas(tandas, porTanda, descifrar, copiar);
    const double megas = static_cast<double>(bytes.size()) / 1e6;
    std::printf("{\"bytes\":%zu,\"xpc_mb_s\":%.1f,\"copia_mb_s\":%.1f,\"ratio\":%.3f}\n", bytes.size(),
                megas / (nuestra / 1e6), megas / (ajena / 1e6), nuestra / ajena);
    return 0;
}

} // namespace ovanta
