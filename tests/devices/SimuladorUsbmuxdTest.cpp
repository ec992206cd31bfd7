#include "tests/devices/ClienteCrudo.h"
#include "tests/devices/DispositivosDePrueba.h"

#include <filesystem>
#include <gmock/gmock.h>

namespace ovanta {
namespace {

using namespace std::string_literals;
using pruebas::ClienteCrudo;
using pruebas::dispositivo;
using pruebas::plist;
using pruebas::valorEnXml;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

std::string palabra(std::size_t numero)
{
    return {static_cast<char>(numero), static_cast<char>(numero >> 8), static_cast<char>(numero >> 16),
            static_cast<char>(numero >> 24)};
}

std::string mensaje(const std::string &dentro, std::size_t version = 1, std::size_t clase = 8)
{
    const std::string cuerpo = plist(dentro);
    return palabra(16 + cuerpo.size()) + palabra(version) + palabra(clase) + palabra(1) + cuerpo;
}

/// The property list of the next answer; checks its header.
std::string respuesta(const ClienteCrudo &cliente)
{
    const std::string cabecera = cliente.leer(16);
    EXPECT_EQ(cabecera.size(), 16U);
    if (cabecera.size() < 16) return "";
    EXPECT_EQ(cabecera.substr(4), "\x01\0\0\0\x08\0\0\0\x01\0\0\0"s);
    std::size_t longitud = 0;
    for (const int i : {3, 2, 1, 0})
        longitud = longitud << 8 | static_cast<unsigned char>(cabecera[static_cast<std::size_t>(i)]);
    return cliente.leer(longitud - 16);
}

std::string preguntar(const UsbmuxdSimulado &usbmuxd, const std::string &bytes)
{
    const auto cliente = ClienteCrudo::deRuta(usbmuxd.ruta());
    cliente.escribir(bytes);
    return respuesta(cliente);
}

std::string conectar(const std::string &identificador, const std::string &puerto)
{
    return mensaje("<key>MessageType</key><string>Connect</string><key>DeviceID</key><integer>" +
                   identificador + "</integer><key>PortNumber</key><integer>" + puerto + "</integer>");
}

TEST(SimuladorUsbmuxd, answersTheVeryBytesOfARequestWrittenByHand)
{
    const UsbmuxdSimulado usbmuxd({dispositivo()});
    const std::string lista =
        preguntar(usbmuxd, "\x5e\0\0\0\x01\0\0\0\x08\0\0\0\x01\0\0\0"
                           "<plist><dict><key>MessageType</key><string>ListDevices</string></dict></plist>"s);
    EXPECT_EQ(valorEnXml(lista, "SerialNumber"), "00008110-000A1B2C3D4E5F60");
    EXPECT_EQ(valorEnXml(lista, "ConnectionType"), "USB");
    EXPECT_EQ(valorEnXml(lista, "DeviceID"), "1");
}

TEST(SimuladorUsbmuxd, connectsToLockdownByThePortInNetworkOrderAndIsTheTunnelThen)
{
    const UsbmuxdSimulado usbmuxd({dispositivo()});
    const auto cliente = ClienteCrudo::deRuta(usbmuxd.ruta());
    cliente.escribir("\xae\0\0\0\x01\0\0\0\x08\0\0\0\x01\0\0\0"
                     "<plist><dict><key>DeviceID</key><integer>1</integer><key>MessageType</key>"
                     "<string>Connect</string><key>PortNumber</key><integer>32498</integer></dict></plist>"s);
    EXPECT_EQ(valorEnXml(respuesta(cliente), "Number"), "0");
    cliente.escribirMarco(plist("<key>Request</key><string>QueryType</string>"));
    EXPECT_EQ(valorEnXml(cliente.leerMarco(), "Type"), "com.apple.mobile.lockdown");
}

TEST(SimuladorUsbmuxd, listsEachDeviceAsItsOptionsSay)
{
    const auto como = [](std::int64_t identificador, auto cambio) {
        return dispositivo([&](OpcionesDispositivo &opciones) {
            opciones.identificador = identificador;
            cambio(opciones);
        });
    };
    const UsbmuxdSimulado usbmuxd({como(1, [](auto &opciones) { opciones.conexion = "Network"; }),
                                   como(2, [](auto &opciones) { opciones.conexion.reset(); }),
                                   como(3, [](auto &opciones) { opciones.conNumeroDeSerie = false; })});
    const std::string lista = preguntar(usbmuxd, mensaje("<key>MessageType</key><string>ListDevices</string>"
                                                         "<key>ClientVersionString</key><string>una</string>"
                                                         "<key>ProgName</key><string>otra</string>"));
    const auto veces = [&](const std::string &texto) {
        std::size_t cuantas = 0;
        for (auto desde = lista.find(texto); desde != std::string::npos; desde = lista.find(texto, desde + 1))
            ++cuantas;
        return cuantas;
    };
    EXPECT_EQ(veces("Attached"), 3U);
    EXPECT_EQ(veces("ConnectionType"), 2U);
    EXPECT_EQ(veces(">Network<"), 1U);
    EXPECT_EQ(veces("SerialNumber"), 2U);
    EXPECT_THAT(usbmuxd.diario().lineas(), ElementsAre("ListDevices (una, otra)"));
}

TEST(SimuladorUsbmuxd, leavesTheListOutWhereItIsTold)
{
    const UsbmuxdSimulado usbmuxd({dispositivo()}, {.conLista = false, .fallos = {}});
    EXPECT_THAT(preguntar(usbmuxd, mensaje("<key>MessageType</key><string>ListDevices</string>")),
                Not(HasSubstr("DeviceList")));
}

TEST(SimuladorUsbmuxd, refusesWhatCannotBeWithTheNumberOfItsReason)
{
    const UsbmuxdSimulado usbmuxd({dispositivo(), dispositivo([](OpcionesDispositivo &opciones) {
                                       opciones.identificador = 2;
                                       opciones.rechazaConexiones = true;
                                   })});
    const std::string lockdown = "32498";
    const std::vector<std::tuple<std::string, std::string, std::string>> casos{
        {"an unknown message", mensaje("<key>MessageType</key><string>Cantar</string>"), "1"},
        {"an unknown device", conectar("77", lockdown), "2"},
        {"a port where nobody listens", conectar("1", "80"), "3"},
        {"the relay before lockdown has started it",
         conectar("1", std::to_string(49'731 % 256 * 256 + 49'731 / 256)), "3"},
        {"a port without its bytes swapped", conectar("1", "62078"), "3"},
        {"a port that is none", conectar("1", "70000"), "3"},
        {"a device that refuses", conectar("2", lockdown), "3"},
        {"another version", mensaje("<key>MessageType</key><string>ListDevices</string>", 0), "6"},
        {"another kind of message", mensaje("<key>MessageType</key><string>ListDevices</string>", 1, 3), "6"},
        {"no pairing record",
         mensaje("<key>MessageType</key><string>ReadPairRecord</string><key>PairRecordID</key><string>x</"
                 "string>"),
         "2"},
    };
    for (const auto &[nombre, bytes, numero] : casos)
        EXPECT_EQ(valorEnXml(preguntar(usbmuxd, bytes), "Number"), numero) << nombre;
}

TEST(SimuladorUsbmuxd, closesOnWhatIsNoMessage)
{
    const UsbmuxdSimulado usbmuxd({dispositivo()});
    const std::string despues = "\x01\0\0\0\x08\0\0\0\x01\0\0\0"s;
    const std::vector<std::string> casos{palabra(15) + despues,          palabra(0) + despues,
                                         palabra(0xffffffff) + despues,  palabra(16) + despues,
                                         palabra(20) + despues + "hola", mensaje("<key>a</key><array/>"),
                                         mensaje("<key>a</key>"),        mensaje("</dict></plist>")};
    for (const std::string &bytes : casos) {
        const auto cliente = ClienteCrudo::deRuta(usbmuxd.ruta());
        cliente.escribir(bytes);
        EXPECT_EQ(cliente.leerTodo(), "") << bytes;
    }
}

TEST(SimuladorUsbmuxd, keepsThePairingRecordOfATrustedDeviceAlone)
{
    const UsbmuxdSimulado usbmuxd({dispositivo(), dispositivo([](OpcionesDispositivo &opciones) {
                                       opciones.udid = "desconfiado";
                                       opciones.deConfianza = false;
                                   })});
    const auto registro = [&](const std::string &udid) {
        return preguntar(usbmuxd, mensaje("<key>MessageType</key><string>ReadPairRecord</string>"
                                          "<key>PairRecordID</key><string>" +
                                          udid + "</string>"));
    };
    EXPECT_THAT(registro("00008110-000A1B2C3D4E5F60"), HasSubstr("<key>PairRecordData</key>"));
    EXPECT_EQ(valorEnXml(registro("desconfiado"), "Number"), "2");
}

TEST(SimuladorUsbmuxd, takesItsSocketAwayWithItself)
{
    std::string ruta;
    {
        const UsbmuxdSimulado usbmuxd({});
        ruta = usbmuxd.ruta();
        EXPECT_TRUE(ClienteCrudo::deRuta(ruta).conectado());
    }
    EXPECT_FALSE(std::filesystem::exists(std::filesystem::path(ruta).parent_path()));
}

TEST(SimuladorUsbmuxd, endsWhileItsClientsHang)
{
    const std::string medio = mensaje("<key>MessageType</key><string>ListDevices</string>").substr(0, 30);
    std::vector<ClienteCrudo> clientes;
    {
        const UsbmuxdSimulado usbmuxd({dispositivo()});
        for (int i = 0; i < 12; ++i) {
            clientes.push_back(ClienteCrudo::deRuta(usbmuxd.ruta()));
            if (i % 3 == 1) clientes.back().escribir(medio);
            if (i % 3 == 2) {
                clientes.back().escribir(conectar("1", "32498"));
                EXPECT_EQ(valorEnXml(respuesta(clientes.back()), "Number"), "0");
            }
        }
    }
    for (const ClienteCrudo &cliente : clientes)
        EXPECT_EQ(cliente.leerTodo(), "");
}

} // namespace
} // namespace ovanta
