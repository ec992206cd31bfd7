#include "platform/simulada/MueblesMac.h"

#include "platform/simulada/ArchivosSinteticos.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <string_view>

namespace ovanta {

namespace {

/// A file by path below the home, its size in KiB and its age in days.
struct Mueble
{
    std::string_view ruta;
    std::uint64_t kib;
    int dias;
};

constexpr std::array documentos{
    Mueble{"Desktop/Captura de pantalla 2026-10-02 a las 9.41.12.png", 850, 50},
    Mueble{"Desktop/Captura de pantalla 2026-11-18 a las 18.05.33.png", 920, 3},
    Mueble{"Documents/Facturas/Factura 2026-014.pdf", 240, 120},
    Mueble{"Documents/Facturas/Factura 2026-015.pdf", 236, 90},
    Mueble{"Documents/Tesis/Tesis final.pdf", 4200, 600},
    Mueble{"Documents/Tesis/Tesis final copia.pdf", 4200, 600},
    Mueble{"Downloads/EditorDeMapas-4.2.dmg", 14'000, 210},
    Mueble{"Downloads/InstaladorImpresora.pkg", 9000, 320},
    Mueble{"Downloads/conjunto-de-datos.zip", 18'000, 140},
    Mueble{"Downloads/conjunto-de-datos (1).zip", 18'000, 139},
    Mueble{"Downloads/Entradas concierto.pdf", 180, 4},
    Mueble{"Movies/Cumpleaños de Inés.mov", 20'000, 500},
    Mueble{"Movies/Grabación de pantalla.mov", 12'000, 30},
    Mueble{"Music/Maquetas/Toma 3.aiff", 7000, 260},
};

constexpr std::array proyectos{
    Mueble{"Proyectos/tienda-web/node_modules/paquete-grande/dist/indice.js", 6000, 200},
    Mueble{"Proyectos/tienda-web/node_modules/paquete-chico/indice.js", 40, 200},
    Mueble{"Proyectos/tienda-web/src/app.js", 12, 190},
    Mueble{"Proyectos/tienda-web/.git/objects/pack/pack-01.pack", 2500, 190},
    Mueble{"Proyectos/AppClima/Pods/Mapas/libMapas.a", 5000, 35},
    Mueble{"Proyectos/AppClima/.build/debug/AppClima.o", 3000, 35},
    Mueble{"Proyectos/AppClima/.git/objects/pack/pack-01.pack", 1800, 35},
    Mueble{"Proyectos/analisis/.venv/lib/python3.12/site-packages/numeros.so", 4000, 400},
    Mueble{"Proyectos/motor/target/release/deps/libmotor.rlib", 3500, 80},
};

constexpr std::array xcode{
    Mueble{"Library/Developer/Xcode/DerivedData/AppClima-bwqfxz/Build/Products/AppClima.o", 14'000, 2},
    Mueble{"Library/Developer/Xcode/DerivedData/Antigua-dkzpre/Build/Products/Antigua.o", 8000, 300},
    Mueble{"Library/Developer/Xcode/iOS DeviceSupport/iPhone15,2 17.5 (21F79)/Symbols/dyld.bin", 9000, 500},
    Mueble{"Library/Developer/Xcode/iOS DeviceSupport/iPhone15,2 18.2 (22C152)/Symbols/dyld.bin", 9000, 30},
    Mueble{"Library/Developer/Xcode/Archives/2026-03-02/AppClima.xcarchive/dSYMs/AppClima.dSYM", 3000, 260},
    Mueble{"Library/Developer/CoreSimulator/Caches/dyld/cache.bin", 5000, 60},
};

constexpr std::array rastros{
    Mueble{"Library/Application Support/com.ejemplo.Desaparecida/base.db", 2200, 700},
    Mueble{"Library/Caches/com.ejemplo.Desaparecida/Cache.db", 1500, 700},
    Mueble{"Library/Caches/com.ejemplo.Lienzo/Cache.db", 2600, 1},
    Mueble{"Library/Logs/com.ejemplo.Lienzo/lienzo.log", 300, 1},
    Mueble{"Library/Mobile Documents/com~apple~CloudDocs/Lista.txt", 4, 20},
};

struct AplicacionDeMuestra
{
    std::string_view nombre;
    std::string_view bundleID;
    std::uint64_t kib;
};

constexpr std::array aplicaciones{
    AplicacionDeMuestra{"Lienzo", "com.ejemplo.Lienzo", 6000},
    AplicacionDeMuestra{"Cuaderno de Campo", "com.ejemplo.CuadernoDeCampo", 3200},
    AplicacionDeMuestra{"Metrónomo", "com.ejemplo.Metronomo", 1100},
};

template <std::size_t N>
void colocar(const std::array<Mueble, N> &muebles, const std::string &hogar, Fecha ahora)
{
    for (const Mueble &mueble : muebles) {
        const std::string ruta = hogar + "/" + std::string(mueble.ruta);
        reservarArchivo(ruta, mueble.kib * 1024);
        fechar(ruta, ahora - std::chrono::days(mueble.dias));
    }
}

std::string plist(std::string_view clave, std::string_view valor)
{
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0">
<dict>
    <key>)" +
           std::string(clave) + "</key>\n    <string>" + std::string(valor) +
           "</string>\n</dict>\n</plist>\n";
}

void instalar(const AplicacionDeMuestra &aplicacion, const std::string &hogar)
{
    const std::string nombre(aplicacion.nombre);
    const std::string contenido = hogar + "/Applications/" + nombre + ".app/Contents";
    escribirTexto(contenido + "/Info.plist", plist("CFBundleIdentifier", aplicacion.bundleID));
    reservarArchivo(contenido + "/MacOS/" + nombre, aplicacion.kib * 1024);
    escribirTexto(hogar + "/Library/Preferences/" + std::string(aplicacion.bundleID) + ".plist",
                  plist("ultimaVersion", "2.1"));
}

} // namespace

void ponerMuebles(const std::string &hogar, Fecha ahora)
{
    colocar(documentos, hogar, ahora);
    colocar(proyectos, hogar, ahora);
    colocar(xcode, hogar, ahora);
    colocar(rastros, hogar, ahora);
    for (const AplicacionDeMuestra &aplicacion : aplicaciones)
        instalar(aplicacion, hogar);
    escribirTexto(hogar + "/Library/LaunchAgents/com.ejemplo.Lienzo.ayudante.plist",
                  plist("Label", "com.ejemplo.Lienzo.ayudante"));
    escribirTexto(hogar + "/.ssh/config", "Host ejemplo\n");
    for (const char *carpeta : {"Public", "Library/Keychains", "Library/Containers"})
        std::filesystem::create_directories(hogar + "/" + carpeta);
}

} // namespace ovanta
