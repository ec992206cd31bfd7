#include "core/Ejecutar.h"
#include "core/LeerArchivo.h"
#include "platform/simulada/PlataformaSimulada.h"
#include "tests/devices/DispositivosDePrueba.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace ovanta {
namespace {

using namespace pruebas;
using nlohmann::json;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

class SimuladorHogar : public testing::Test
{
protected:
    /// The JSON that a call of `xcrun devicectl` leaves.
    json devicectl(std::vector<std::string> args)
    {
        const std::string archivo = mac.lugares().hogar + "/devicectl.json";
        std::filesystem::remove(archivo);
        args.insert(args.begin(), "devicectl");
        args.insert(args.end(), {"-j", archivo, "-q"});
        mac.herramientas().ejecutar("/usr/bin/xcrun", args, 45, true);
        return json::parse(leerArchivo(archivo, 1'000'000, EnlaceFinal::rechazar));
    }

    PlataformaSimulada mac{
        {.recursos = "", .relojDetenido = leerISO8601("2026-11-21T10:00:00Z"), .apariencia = {}}};
};

TEST_F(SimuladorHogar, itsMultiplexerListsTheDevicesOfTheHousehold)
{
    const std::string ruta = mac.conexiones().rutaUsbmuxd();
    EXPECT_EQ(mac.conexiones().rutaUsbmuxd(), ruta);
    auto canal = mac.conexiones().abrirUnix(ruta, Plazo(std::chrono::seconds{30}));
    ASSERT_TRUE(canal);
    const std::string cuerpo = plist(texto("MessageType", "ListDevices"));
    ASSERT_LT(cuerpo.size(), 256U - 16);
    ASSERT_TRUE((*canal)->enviar(
        std::string{static_cast<char>(cuerpo.size() + 16), 0, 0, 0, 1, 0, 0, 0, 8, 0, 0, 0, 1, 0, 0, 0} +
        cuerpo));
    std::string lista;
    std::array<char, 4096> trozo;
    while (lista.find("</plist>") == std::string::npos) {
        const auto leidos = (*canal)->recibir(trozo);
        ASSERT_TRUE(leidos);
        lista.append(trozo.data(), *leidos);
    }
    std::size_t cables = 0;
    for (auto i = lista.find(">USB<"); i != std::string::npos; i = lista.find(">USB<", i + 1))
        ++cables;
    EXPECT_EQ(cables, 4U);
    EXPECT_NE(lista.find(">Network<"), std::string::npos);
}

TEST_F(SimuladorHogar, itsDeveloperToolsListTheDevicesTheyKnow)
{
    EXPECT_THAT(mac.herramientas().ejecutar("/usr/bin/xcrun", {"--find", "devicectl"}, 15, false),
                testing::EndsWith("/devicectl\n"));
    const json dispositivos = devicectl({"list", "devices"}).at("result").at("devices");
    std::vector<std::string> nombres;
    std::vector<std::string> transportes;
    for (const json &uno : dispositivos) {
        nombres.push_back(uno.at("deviceProperties").at("name"));
        transportes.push_back(uno.at("connectionProperties").value("transportType", "ninguno"));
    }
    EXPECT_THAT(nombres, UnorderedElementsAre("iPhone de Lucía", "iPad del salón", "iPhone de Ana"));
    EXPECT_THAT(transportes, UnorderedElementsAre("wired", "localNetwork", "ninguno"));
}

TEST_F(SimuladorHogar, aTunnelLeadsToTheDiscoveryPortOfItsDeviceAlone)
{
    const json dispositivos = devicectl({"list", "devices"}).at("result").at("devices");
    const auto detalles = [&](std::size_t cual) {
        return devicectl({"device", "info", "details", "--device", dispositivos.at(cual).at("identifier")})
            .at("result")
            .at("connectionProperties");
    };
    const json conexion = detalles(0);
    EXPECT_EQ(conexion.at("tunnelState"), "connected");
    const std::string direccion = conexion.at("tunnelIPAddress");
    const auto abre = [&](std::uint16_t puerto) {
        return mac.conexiones()
            .abrirTcp6(direccion, puerto, std::chrono::seconds{5}, Plazo(std::chrono::seconds{30}))
            .has_value();
    };
    EXPECT_TRUE(abre(primerPuertoRsd));
    EXPECT_TRUE(abre(primerPuertoRsd + 1));
    EXPECT_FALSE(abre(primerPuertoRsd + 2));
    EXPECT_EQ(detalles(0).at("tunnelIPAddress"), direccion);
    EXPECT_EQ(detalles(1).at("tunnelState"), "disconnected");
    EXPECT_FALSE(detalles(1).contains("tunnelIPAddress"));
}

TEST_F(SimuladorHogar, itsDeveloperToolsRefuseWhatTheyDoNotKnow)
{
    const auto llamar = [&](const std::vector<std::string> &args) {
        mac.herramientas().ejecutar("/usr/bin/xcrun", args, 5, false);
    };
    EXPECT_THROW(llamar({"devicectl", "device", "reboot"}), ShellError);
    EXPECT_THROW(llamar({"devicectl", "device", "info", "details", "--device", "nadie"}), ShellError);
    EXPECT_THROW(llamar({"devicectl", "device", "info", "details", "--device"}), ShellError);
    EXPECT_THROW(llamar({"devicectl", "list", "devices", "-j", "/no/hay/carpeta"}), ShellError);
}

TEST(SimuladorDevicectl, aTunnelMayOpenAtTheSecondQuestion)
{
    DevicectlSimulado devicectl({{dispositivo(), "ID", "wired", {"disconnected", "connected"}}});
    const std::string archivo = std::filesystem::temp_directory_path() / "ovanta-prueba-devicectl.json";
    std::vector<std::string> estados;
    for (int i = 0; i < 3; ++i) {
        devicectl.responder(
            {"devicectl", "device", "info", "details", "--device", "ID", "-j", archivo, "-q"});
        const json leido = json::parse(leerArchivo(archivo, 1'000'000, EnlaceFinal::rechazar));
        estados.push_back(leido.at("result").at("connectionProperties").at("tunnelState"));
    }
    std::filesystem::remove(archivo);
    EXPECT_THAT(estados, ElementsAre("disconnected", "connected", "connected"));
}

} // namespace
} // namespace ovanta
