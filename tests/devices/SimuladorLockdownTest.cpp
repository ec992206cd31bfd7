#include "tests/devices/DispositivosDePrueba.h"

#include <gmock/gmock.h>

namespace ovanta {
namespace {

using namespace pruebas;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

const std::string servicio = texto("Service", "com.apple.mobile.diagnostics_relay");

TEST(SimuladorLockdown, opensAPlainSessionAndTellsTheDeviceTheBatteryAndThePortOfTheRelay)
{
    const Puerto puerto(dispositivo([](OpcionesDispositivo &opciones) {
                            opciones.sesionCifrada = false;
                            opciones.servicioCifrado.reset();
                        }),
                        DispositivoSimulado::puertoLockdown);
    const ClienteCrudo &cliente = puerto.cliente;
    EXPECT_EQ(valorEnXml(preguntar(cliente, peticion("GetValue")), "Error"), "SessionInactive");
    const std::string sesion = preguntar(cliente, abrirSesion(*puerto.dispositivo));
    EXPECT_EQ(valorEnXml(sesion, "EnableSessionSSL"), "false");
    const std::string valores = preguntar(cliente, peticion("GetValue"));
    EXPECT_EQ(valorEnXml(valores, "DeviceName"), "iPhone de Ana");
    EXPECT_EQ(valorEnXml(valores, "ProductType"), "iPhone14,7");
    const std::string bateria =
        preguntar(cliente, peticion("GetValue", texto("Domain", "com.apple.mobile.battery")));
    EXPECT_EQ(valorEnXml(bateria, "BatteryCurrentCapacity"), "76");
    EXPECT_EQ(valorEnXml(bateria, "BatteryIsCharging"), "true");
    EXPECT_FALSE(puerto.dispositivo->aceptaConexion(49'731));
    const std::string rele = preguntar(cliente, peticion("StartService", servicio));
    EXPECT_EQ(valorEnXml(rele, "Port"), "49731");
    EXPECT_THAT(rele, Not(HasSubstr("EnableServiceSSL")));
    EXPECT_TRUE(puerto.dispositivo->aceptaConexion(49'731));
    EXPECT_FALSE(puerto.dispositivo->aceptaConexion(49'731)) << "a start is good for one connection";
    const std::string id = valorEnXml(sesion, "SessionID");
    EXPECT_EQ(valorEnXml(preguntar(cliente, peticion("StopSession", texto("SessionID", id))), "Error"), "");
    EXPECT_EQ(puerto.dispositivo->diario().lineas().back(), "lockdown StopSession (yo)");
}

TEST(SimuladorLockdown, refusesWithTheErrorOfItsReason)
{
    using Cambio = std::function<void(OpcionesDispositivo &)>;
    const Cambio ninguno = [](OpcionesDispositivo &) {};
    const Cambio bloqueado = [](OpcionesDispositivo &opciones) { opciones.bloqueado = true; };
    const Cambio conFallo = [](OpcionesDispositivo &opciones) {
        opciones.fallosLockdown.errores["GetValue com.apple.mobile.battery"] = "MissingValue";
    };
    const std::vector<std::tuple<Cambio, std::string, std::string>> casos{
        {ninguno, peticion("StartService", texto("Service", "com.apple.afc")), "InvalidService"},
        {ninguno, peticion("StopSession", texto("SessionID", "otra")), "InvalidSessionID"},
        {ninguno, peticion("Pair"), "UnknownRequest"},
        {bloqueado, peticion("StartService", servicio), "PasswordProtected"},
        {conFallo, peticion("GetValue", texto("Domain", "com.apple.mobile.battery")), "MissingValue"},
    };
    for (const auto &[cambio, pregunta, error] : casos) {
        const Puerto puerto(dispositivo([&](OpcionesDispositivo &opciones) {
                                opciones.sesionCifrada.reset();
                                cambio(opciones);
                            }),
                            DispositivoSimulado::puertoLockdown);
        preguntar(puerto.cliente, abrirSesion(*puerto.dispositivo));
        EXPECT_EQ(valorEnXml(preguntar(puerto.cliente, pregunta), "Error"), error);
    }
}

TEST(SimuladorLockdown, opensNoSessionForAnotherPairing)
{
    const Puerto puerto(dispositivo(), DispositivoSimulado::puertoLockdown);
    EXPECT_EQ(
        valorEnXml(preguntar(puerto.cliente, peticion("StartSession", texto("HostID", "otro"))), "Error"),
        "InvalidHostID");
}

TEST(SimuladorLockdown, leavesOutTheBatteryValuesAndThePortThatADeviceDoesNotHave)
{
    const Puerto puerto(dispositivo([](OpcionesDispositivo &opciones) {
                            opciones.sesionCifrada = false;
                            opciones.conDominioDeBateria = false;
                            opciones.puertoRele.reset();
                        }),
                        DispositivoSimulado::puertoLockdown);
    preguntar(puerto.cliente, abrirSesion(*puerto.dispositivo));
    EXPECT_THAT(preguntar(puerto.cliente, peticion("GetValue", texto("Domain", "com.apple.mobile.battery"))),
                Not(HasSubstr("Value</key>")));
    EXPECT_THAT(preguntar(puerto.cliente, peticion("StartService", servicio)), Not(HasSubstr("Port</key>")));
}

TEST(SimuladorRele, givesARegistryWithTheFiguresOfTheBatteryAndSaysGoodbye)
{
    const Puerto puerto(dispositivo([](OpcionesDispositivo &opciones) { opciones.servicioCifrado = false; }),
                        49'731);
    const std::string registro =
        preguntar(puerto.cliente, peticion("IORegistry", texto("EntryName", "AppleSmartBattery")));
    const std::vector<std::pair<std::string, std::string>> esperados{
        {"CycleCount", "412"},     {"DesignCapacity", "3279"}, {"NominalChargeCapacity", "2918"},
        {"Temperature", "2870"},   {"Voltage", "4112"},        {"AppleRawMaxCapacity", "2874"},
        {"CurrentCapacity", "76"}, {"IsCharging", "true"},     {"Status", "Success"},
    };
    for (const auto &[clave, valor] : esperados)
        EXPECT_EQ(valorEnXml(registro, clave), valor) << clave;
    EXPECT_EQ(valorEnXml(preguntar(puerto.cliente, peticion("Goodbye")), "Status"), "Success");
    EXPECT_EQ(puerto.cliente.leerTodo(), "");
    EXPECT_THAT(puerto.dispositivo->diario().lineas(),
                ElementsAre("relé IORegistry AppleSmartBattery (yo)", "relé Goodbye (yo)"));
}

TEST(SimuladorRele, mayFailAndSayNothingOfTheBattery)
{
    const Puerto puerto(dispositivo([](OpcionesDispositivo &opciones) {
                            opciones.servicioCifrado = false;
                            opciones.conDiagnostico = false;
                            opciones.estadoRele = "Failure";
                        }),
                        49'731);
    const std::string respuesta =
        preguntar(puerto.cliente, peticion("IORegistry", texto("EntryName", "AppleSmartBattery")));
    EXPECT_EQ(valorEnXml(respuesta, "Status"), "Failure");
    EXPECT_THAT(respuesta, Not(HasSubstr("Diagnostics")));
}

TEST(SimuladorRele, closesOnAFrameThatIsNoRequest)
{
    const std::vector<std::string> casos{std::string(4, '\0'), "\xff\xff\xff\xff",
                                         std::string("\0\0\0\x04hola", 8)};
    for (const std::string &bytes : casos) {
        const Puerto puerto(dispositivo([](auto &opciones) { opciones.servicioCifrado = false; }), 49'731);
        puerto.cliente.escribir(bytes);
        EXPECT_EQ(puerto.cliente.leerTodo(), "");
    }
}

} // namespace
} // namespace ovanta
