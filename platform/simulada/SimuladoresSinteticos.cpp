#include "platform/simulada/SimuladoresSinteticos.h"

#include "core/Ejecutar.h"
#include "platform/simulada/ArchivosSinteticos.h"

#include <array>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <string_view>

namespace ovanta {

namespace {

struct SimuladorDeMuestra
{
    std::string_view udid;
    std::string_view nombre;
    std::string_view runtime;
    std::string_view estado;
    bool disponible;
    std::uint64_t kib; ///< 0 for one without a folder
    int dias;
};

constexpr std::array muestras{
    SimuladorDeMuestra{"0B5C7A1E-41D2-4C77-9E0F-6B8E2D9A1C01", "iPhone 16 Pro", "iOS-18-2", "Booted", true,
                       2400, 1},
    SimuladorDeMuestra{"1D9F3B62-7C05-4B8A-8F3D-2E61A7C40D02", "iPhone 16", "iOS-18-2", "Shutdown", true,
                       2000, 2},
    SimuladorDeMuestra{"2E7A90C4-5B1F-4D36-A1C8-93F0B52E7A03", "iPad Pro 13 pulgadas (M4)", "iOS-18-2",
                       "Shutdown", true, 1600, 5},
    SimuladorDeMuestra{"3F1C64D8-0A97-4E52-B6D1-7A85C93F1B04", "Pruebas de AppClima", "iOS-18-2", "Shutdown",
                       true, 1300, 6},
    SimuladorDeMuestra{"4A82E5F0-D36B-4F19-95C7-1B04D68E2C05", "iPhone 15 Pro Max", "iOS-17-5", "Shutdown",
                       true, 1900, 40},
    SimuladorDeMuestra{"5B03F6A1-E47C-4A28-86D8-2C15E79F3D06", "iPhone SE (3.ª generación)", "iOS-17-5",
                       "Shutdown", true, 950, 120},
    SimuladorDeMuestra{"6C14A7B2-F58D-4B39-97E9-3D26F8A04E07", "Apple Watch Ultra 2 (49 mm)", "watchOS-11-2",
                       "Shutdown", true, 560, 64},
    SimuladorDeMuestra{"7D25B8C3-069E-4C40-A8F0-4E3709B15F08", "Apple TV 4K", "tvOS-18-2", "Shutdown", true,
                       430, 210},
    SimuladorDeMuestra{"8E36C9D4-17AF-4D51-B901-5F481AC26009", "iPhone 12", "iOS-15-5", "Shutdown", false,
                       1100, 610},
    SimuladorDeMuestra{"9F47DAE5-28B0-4E62-8A12-60592BD3710A", "iPhone 16 Plus", "iOS-18-2", "Shutdown", true,
                       0, 0},
};

constexpr std::string_view carpetaDispositivos = "/Library/Developer/CoreSimulator/Devices/";
constexpr std::string_view prefijoRuntime = "com.apple.CoreSimulator.SimRuntime.";

std::string listaDeDispositivos()
{
    auto dispositivos = nlohmann::json::object();
    for (const SimuladorDeMuestra &una : muestras)
        dispositivos[std::string(prefijoRuntime) + std::string(una.runtime)].push_back(
            {{"udid", una.udid},
             {"name", una.nombre},
             {"state", una.estado},
             {"isAvailable", una.disponible}});
    return nlohmann::json{{"devices", dispositivos}}.dump(2);
}

} // namespace

void ponerSimuladores(const std::string &hogar, Fecha ahora)
{
    for (const SimuladorDeMuestra &una : muestras) {
        if (una.kib == 0) continue;
        const std::string carpeta = hogar + std::string(carpetaDispositivos) + std::string(una.udid);
        reservarArchivo(carpeta + "/data/Containers/Data/almacen.bin", una.kib * 1024);
        fechar(carpeta, ahora - std::chrono::days(una.dias));
    }
}

std::string responderXcrun(const std::vector<std::string> &args)
{
    if (args == std::vector<std::string>{"simctl", "list", "devices", "-j"}) return listaDeDispositivos();
    throw ShellError::fallo(64, "xcrun: el Mac simulado solo sabe listar simuladores");
}

} // namespace ovanta
