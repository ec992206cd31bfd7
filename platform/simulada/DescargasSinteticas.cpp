#include "platform/simulada/DescargasSinteticas.h"

#include "platform/simulada/ArchivosSinteticos.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <string_view>

namespace ovanta {

namespace fs = std::filesystem;

namespace {

/// A file below "Downloads" whose content is that of all files with the same size, seed and end.
struct Descarga
{
    std::string_view ruta;
    std::uint64_t tamanoEnKib;
    int dias;
    std::string_view semilla;
    std::string_view final = "fin";
};

constexpr std::array descargas{
    Descarga{"Viaje a Lisboa/Tranvía 28.mov", 2400, 160, "tranvía"},
    Descarga{"Tranvía 28 (copia).mov", 2400, 120, "tranvía"},
    Descarga{"Informe anual v1.pdf", 1200, 95, "informe", "uno"},
    Descarga{"Informe anual v2.pdf", 1200, 60, "informe", "dos"},
    Descarga{"Fuentes/Letra de molde.ttc", 1500, 300, "letra"},
    Descarga{"Captura de pantalla 2026-08-02 a las 10.15.00.png", 1300, 111, "captura"},
    Descarga{"Screenshot 2026-11-10 at 18.40.12.png", 1100, 11, "screenshot"},
    Descarga{"Compilador-18.1.dmg", 3000, 400, "compilador"},
    Descarga{"plantilla-web/node_modules/paquete/indice.js", 2500, 220, "paquete"},
    Descarga{"plantilla-web/build/salida.js", 1400, 220, "salida"},
};

/// Second names: the target first.
constexpr std::array<std::array<std::string_view, 2>, 2> enlacesFisicos{{
    {"Tranvía 28 (copia).mov", "Viaje a Lisboa/El tranvía otra vez.mov"},
    {"Fuentes/Letra de molde.ttc", "Fuentes/Letra de molde (enlace).ttc"},
}};

void poner(const Descarga &descarga, const std::string &carpeta, Fecha ahora)
{
    const std::string ruta = carpeta + "/" + std::string(descarga.ruta);
    const std::uint64_t bytes = descarga.tamanoEnKib * kib;
    reservarArchivo(ruta, bytes);
    escribirEn(ruta, 0, descarga.semilla);
    escribirEn(ruta, bytes - descarga.final.size(), descarga.final);
    fechar(ruta, ahora - std::chrono::days(descarga.dias));
}

/// The sticky bit says that the content lies elsewhere.
void ponerEnLaNube(const std::string &ruta, Fecha ahora)
{
    escribirTexto(ruta, "");
    fs::resize_file(ruta, 6000 * kib);
    fs::permissions(ruta, fs::perms::sticky_bit, fs::perm_options::add);
    fechar(ruta, ahora - std::chrono::days(130));
}

} // namespace

void ponerDescargas(const std::string &hogar, Fecha ahora)
{
    const std::string carpeta = hogar + "/Downloads";
    for (const Descarga &descarga : descargas)
        poner(descarga, carpeta, ahora);
    for (const auto &[archivo, enlace] : enlacesFisicos)
        fs::create_hard_link(carpeta + "/" + std::string(archivo), carpeta + "/" + std::string(enlace));
    ponerEnLaNube(carpeta + "/Película en la nube.mov", ahora);
}

} // namespace ovanta
