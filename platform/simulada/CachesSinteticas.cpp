#include "platform/simulada/CachesSinteticas.h"

#include "platform/simulada/ArchivosSinteticos.h"

#include <filesystem>

namespace ovanta {

namespace fs = std::filesystem;

namespace {

/// A few places are big and most are small, none quite like its neighbours.
std::uint64_t tamanoDe(std::size_t numero)
{
    const std::uint64_t base = numero % 12 == 0 ? 2000 : 20;
    return (base + numero * 977 % 400) * kib;
}

/// Few files: giving back reserved blocks takes the disk milliseconds a file.
void llenarCarpeta(const std::string &carpeta, std::size_t numero, Fecha ahora)
{
    const std::string bloque = carpeta + "/data/blob-00.bin";
    reservarArchivo(bloque, tamanoDe(numero));
    fechar(bloque, ahora - std::chrono::days(numero % 50));
    escribirTexto(carpeta + "/indice.json", "{}\n");
}

} // namespace

void llenarCaches(const std::string &hogar, const std::vector<std::string> &rutas, Fecha ahora)
{
    for (std::size_t numero = 0; numero < rutas.size(); ++numero) {
        if (!rutas[numero].starts_with("~/")) continue;
        const std::string ruta = hogar + rutas[numero].substr(1);
        const bool ausente = numero % 9 == 4;
        const bool vacia = numero % 9 == 7;
        if (ausente || fs::exists(ruta)) continue;
        if (vacia)
            fs::create_directories(ruta);
        else
            llenarCarpeta(ruta, numero, ahora);
    }
}

} // namespace ovanta
