#include "platform/simulada/ProgramasMac.h"

#include <cmath>
#include <string_view>

namespace ovanta {

namespace {

using Politica = AplicacionEnMarcha::Politica;

constexpr double mib = 1024.0 * 1024.0;

ProgramaMac programa(const std::string &nombre, const std::string &identificador, double mebis, double carga,
                     Politica politica = Politica::regular, const std::string &carpeta = "/Applications")
{
    AplicacionEnMarcha app;
    app.ruta = carpeta + "/" + nombre + ".app";
    app.identificador = identificador;
    app.nombre = nombre;
    app.politica = politica;
    return {app, {{nombre, mebis * mib, carga}}, AlCerrar::sale};
}

/// Helpers of unequal size: the first of them takes `mebis`, each further one a little less.
ProgramaMac con(ProgramaMac programa, const std::string &auxiliar, int cuantos, double mebis, double carga)
{
    for (int i = 0; i < cuantos; ++i)
        programa.procesos.push_back({auxiliar, mebis * mib * std::pow(0.96, i), carga * std::pow(0.9, i)});
    return programa;
}

ProgramaMac que(ProgramaMac programa, AlCerrar alCerrar)
{
    programa.alCerrar = alCerrar;
    return programa;
}

ProgramaMac suelto(const std::string &nombre, double mebis, double carga)
{
    return {std::nullopt, {{nombre, mebis * mib, carga}}, AlCerrar::sale};
}

} // namespace

std::vector<ProgramaMac> programasDeUnMac()
{
    const std::string nucleo = "/System/Library/CoreServices";
    const std::string sistema = "/System/Applications";
    return {
        con(programa("Google Chrome", "com.google.Chrome", 470, 0.22), "Google Chrome Helper (Renderer)", 40,
            128, 0.16),
        que(con(programa("Docker", "com.docker.docker", 96, 0.03), "com.docker.virtualization", 1, 1'540,
                0.34),
            AlCerrar::dejaAuxiliares),
        con(programa("Simulator", "com.apple.iphonesimulator", 310, 0.12), "SpringBoard", 3, 420, 0.06),
        que(con(programa("Visual Studio Code", "com.microsoft.VSCode", 240, 0.09), "Code Helper (Renderer)",
                11, 118, 0.05),
            AlCerrar::preguntaSiGuardar),
        que(con(programa("Slack", "com.tinyspeck.slackmacgap", 160, 0.02), "Slack Helper", 5, 92, 0.01),
            AlCerrar::dejaAuxiliares),
        con(programa("Figma", "com.figma.Desktop", 210, 0.04), "Figma Helper", 4, 86, 0.02),
        con(programa("Mail", "com.apple.mail", 186, 0.01, Politica::regular, sistema), "com.apple.WebKit", 2,
            74, 0.0),
        programa("Terminal", "com.apple.Terminal", 122, 0.02, Politica::regular, sistema + "/Utilities"),
        programa("Notas", "com.apple.Notes", 104, 0.0, Politica::regular, sistema),
        programa("Finder", "com.apple.finder", 168, 0.01, Politica::regular, nucleo),
        programa("Dock", "com.apple.dock", 84, 0.01, Politica::accesoria, nucleo),
        programa("Centro de control", "com.apple.controlcenter", 62, 0.01, Politica::accesoria, nucleo),
        programa("Ovanta", "com.belmora.Ovanta", 88, 0.01),
        programa("Rectangle", "com.knollsoft.Rectangle", 46, 0.0, Politica::accesoria),
        suelto("ollama", 1'180, 0.0),
        suelto("node", 344, 0.13),
        suelto("mds_stores", 212, 0.18),
        suelto("postgres", 96, 0.02),
        suelto("fileproviderd", 74, 0.01),
        suelto("photoanalysisd", 131, 0.05),
        suelto("cloudd", 48, 0.0),
        suelto("distnoted", 22, 0.0),
        suelto("cfprefsd", 9, 0.0),
    };
}

} // namespace ovanta
