#include "devices/CoreDevice.h"

#include "core/Ejecutar.h"
#include "tests/PlataformaDePrueba.h"
#include "tests/devices/TelefonoDePrueba.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>
#include <system_error>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

const Plazo sobrado{24h};
const std::string servicio = "com.apple.mobile.diagnostics_relay.shim.remote";
const std::string sinDatos = "Xcode no devolvió datos del dispositivo.";
const std::string sinTunel =
    "No se pudo abrir la conexión con el dispositivo. Desbloquéalo e inténtalo de nuevo.";
const std::string lista = R"({"result":{"devices":[{"identifier":"A1",
    "connectionProperties":{"transportType":"wired"},"hardwareProperties":{"udid":"U1"}}]}})";

std::string conTunel(const std::string &estado, const std::string &ip)
{
    return R"({"result":{"connectionProperties":{"tunnelState":")" + estado + R"(","tunnelIPAddress":")" +
           ip + R"("}}})";
}

struct CoreDeviceTest : testing::Test
{
    HerramientasDePrueba herramientas;
    ConexionesEnMemoria conexiones;
    TelefonoDePrueba telefono;
    std::vector<std::optional<std::string>> archivos{lista}; ///< what each call writes; the last one repeats
    std::function<void()> despues = [] {};                   ///< what the tool ends with
    std::string ruta;                                        ///< where it wrote last
    CoreDevice::Dispositivo dispositivo{.id = "A1",
                                        .udid = "U1",
                                        .nombre = "iPhone de Ana",
                                        .modelo = "iPhone14,2",
                                        .marketing = "iPhone 13 Pro",
                                        .clase = "iPhone",
                                        .version = "17.5.1",
                                        .transporte = "Wi-Fi"};

    CoreDeviceTest()
    {
        herramientas.alEjecutar = [this](const std::string &, const std::vector<std::string> &args) {
            ruta = args.at(args.size() - 2);
            const auto &contenido = archivos.at(std::min(herramientas.llamadas.size(), archivos.size()) - 1);
            if (contenido) std::ofstream(ruta) << *contenido;
            despues();
            return std::string{};
        };
    }

    std::string falloDeLista()
    {
        const auto leida = CoreDevice::conectados(herramientas, sobrado);
        return leida ? "" : leida.error().errorDescription();
    }
    std::expected<std::string, ErrorIOS> tunel()
    {
        return CoreDevice::abrirTunel(herramientas, dispositivo, sobrado);
    }
    std::expected<LecturaBateriaIOS, ErrorIOS> leer()
    {
        return CoreDevice::leer(herramientas, conexiones, dispositivo, sobrado);
    }

    /// A tunnel with a discovery that names this service, and the relay behind it.
    void montar(const std::string &nombre)
    {
        archivos = {conTunel("connected", "fd00::1")};
        conexiones.puertos[58783] = [nombre] {
            const std::string carga = xpcMensaje(xpcSaludo(xpcMapa({{nombre, xpcServicio("50000")}})));
            Extremo nuevo;
            nuevo.salida = be(carga.size(), 3) + std::string(2, '\0') + be(1, 4) + carga;
            return nuevo;
        };
        conexiones.puertos[50000] = [this] { return telefono.relevo(); };
    }
};

} // namespace

TEST_F(CoreDeviceTest, theToolIsCalledWithAFreshFileForItsAnswer)
{
    EXPECT_THAT(*CoreDevice::conectados(herramientas, sobrado), SizeIs(1));
    EXPECT_THAT(herramientas.llamadas,
                ElementsAre(ElementsAre("/usr/bin/xcrun", "devicectl", "list", "devices", "-j", ruta, "-q")));
    EXPECT_TRUE(herramientas.ultimoTolerarFallo);
    EXPECT_TRUE(std::regex_match(
        ruta, std::regex("/.*/ovanta-devicectl-[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}\\.json")))
        << ruta;
    const std::string primera = ruta;
    EXPECT_TRUE(CoreDevice::conectados(herramientas, sobrado));
    EXPECT_NE(ruta, primera);
}

TEST_F(CoreDeviceTest, theListMayTakeAMinuteAndTheDetailsThreeQuartersOfIt)
{
    const Plazo largo{600s};
    EXPECT_TRUE(CoreDevice::conectados(herramientas, largo));
    EXPECT_EQ(herramientas.ultimoLimite, 60);
    archivos = {conTunel("connected", "fd00::1")};
    EXPECT_TRUE(CoreDevice::abrirTunel(herramientas, dispositivo, largo));
    EXPECT_EQ(herramientas.ultimoLimite, 45);
    EXPECT_TRUE(CoreDevice::abrirTunel(herramientas, dispositivo, Plazo{7s}));
    EXPECT_LE(herramientas.ultimoLimite, 7);
}

TEST_F(CoreDeviceTest, aToolThatFailsAfterWritingAValidFileCounts)
{
    despues = [] { throw ShellError::fallo(1, "no"); };
    EXPECT_THAT(*CoreDevice::conectados(herramientas, sobrado), SizeIs(1));
    despues = [] { throw ShellError::agotado("xcrun", 60); };
    EXPECT_THAT(*CoreDevice::conectados(herramientas, sobrado), SizeIs(1));
    despues = [] { throw std::system_error(std::make_error_code(std::errc::operation_canceled)); };
    EXPECT_THAT(*CoreDevice::conectados(herramientas, sobrado), SizeIs(1));
}

TEST_F(CoreDeviceTest, aToolThatEndsWellButWroteNothingIsTold)
{
    archivos = {std::nullopt};
    EXPECT_EQ(falloDeLista(), sinDatos);
    archivos = {""};
    EXPECT_EQ(falloDeLista(), sinDatos);
    archivos = {"{}"};
    EXPECT_EQ(falloDeLista(), sinDatos);
    archivos = {"{"};
    EXPECT_EQ(falloDeLista(), "La respuesta de devicectl no es JSON válido.");
}

TEST_F(CoreDeviceTest, aFileThatIsNoneIsRefused)
{
    herramientas.alEjecutar = [](const std::string &, const std::vector<std::string> &args) {
        std::filesystem::create_symlink("/etc/passwd", args.at(args.size() - 2));
        return std::string{};
    };
    EXPECT_EQ(falloDeLista(), sinDatos);
}

TEST_F(CoreDeviceTest, theFileGoesAwayOnEveryWayOut)
{
    for (const auto &contenido : {std::optional<std::string>(lista), std::optional<std::string>("{"),
                                  std::optional<std::string>("[]"), std::optional<std::string>()}) {
        archivos = {contenido};
        static_cast<void>(CoreDevice::conectados(herramientas, sobrado));
        EXPECT_FALSE(std::filesystem::exists(ruta));
    }
    despues = [] { throw ShellError::fallo(1, "no"); };
    static_cast<void>(CoreDevice::conectados(herramientas, sobrado));
    EXPECT_FALSE(std::filesystem::exists(ruta));
}

TEST_F(CoreDeviceTest, aMachineWithoutTheToolHasNoSuchDevices)
{
    herramientas.alEjecutar = [](const std::string &binario, const auto &) -> std::string {
        throw ShellError::noEncontrado(binario);
    };
    EXPECT_THAT(*CoreDevice::conectados(herramientas, sobrado), IsEmpty());
    EXPECT_EQ(tunel().error().errorDescription(), sinDatos);
}

TEST_F(CoreDeviceTest, aListOfAnotherTypeIsEmptyAndNoError)
{
    archivos = {R"({"result":{"devices":{"a":1}}})"};
    EXPECT_THAT(*CoreDevice::conectados(herramientas, sobrado), IsEmpty());
}

TEST_F(CoreDeviceTest, theTunnelIsAskedForByTheIdOfCoreDevice)
{
    archivos = {conTunel("connected", "fd00::1")};
    EXPECT_EQ(tunel(), "fd00::1");
    EXPECT_THAT(herramientas.llamadas,
                ElementsAre(ElementsAre("/usr/bin/xcrun", "devicectl", "device", "info", "details",
                                        "--device", "A1", "-j", ruta, "-q")));
}

TEST_F(CoreDeviceTest, aTunnelThatStandsAtTheSecondAttemptGivesItsAddress)
{
    archivos = {conTunel("disconnected", "fd00::1"), conTunel("connected", "fd00::2")};
    EXPECT_EQ(tunel(), "fd00::2");
    EXPECT_THAT(herramientas.llamadas, SizeIs(2));
}

TEST_F(CoreDeviceTest, afterTwoAttemptsTheUserIsAskedToUnlock)
{
    for (const std::string &archivo :
         {conTunel("connecting", "fd00::1"), std::string(R"({"result":{}})"),
          std::string(R"({"result":{"connectionProperties":[]}})"),
          std::string(R"({"result":{"connectionProperties":{"tunnelState":"connected"}}})")}) {
        herramientas.llamadas.clear();
        archivos = {archivo};
        EXPECT_EQ(tunel().error().errorDescription(), sinTunel);
        EXPECT_THAT(herramientas.llamadas, SizeIs(2));
    }
}

TEST_F(CoreDeviceTest, anErrorOfTheToolLeavesNoSecondAttempt)
{
    archivos = {std::nullopt, conTunel("connected", "fd00::2")};
    EXPECT_EQ(tunel().error().errorDescription(), sinDatos);
    EXPECT_THAT(herramientas.llamadas, SizeIs(1));
}

TEST_F(CoreDeviceTest, aReadingIsFilledFromTheListAndTheRelay)
{
    montar(servicio);
    LecturaBateriaIOS esperada;
    esperada.nombre = "iPhone de Ana";
    esperada.modelo = "iPhone14,2";
    esperada.marketing = "iPhone 13 Pro";
    esperada.clase = "iPhone";
    esperada.version = "17.5.1";
    esperada.transporte = "Wi-Fi";
    esperada.registro = telefono.registro;
    EXPECT_EQ(leer(), esperada);
    EXPECT_THAT(
        telefono.mensajes,
        ElementsAre(
            DiccionarioPlist{{"Label", "Ovanta"}, {"ProtocolVersion", "2"}, {"Request", "RSDCheckin"}},
            DiccionarioPlist{
                {"Label", "Ovanta"}, {"Request", "IORegistry"}, {"EntryName", "AppleSmartBattery"}},
            DiccionarioPlist{{"Label", "Ovanta"}, {"Request", "Goodbye"}}));
    EXPECT_THAT(conexiones.intentos.back(), testing::Pair(50000, 5000ms));
    EXPECT_EQ(conexiones.reglas.abiertos, 0);
}

TEST_F(CoreDeviceTest, theAnswersToTheCheckInAreNotLookedInto)
{
    montar(servicio);
    telefono.respuestas["RSDCheckin"] = DiccionarioPlist{{"Error", "x"}};
    telefono.aviso = DiccionarioPlist{{"Error", "y"}};
    EXPECT_TRUE(leer());
}

TEST_F(CoreDeviceTest, anUnreadableAnswerToTheCheckInIsPassedOn)
{
    montar(servicio);
    telefono.aviso = ListaPlist{};
    EXPECT_EQ(leer().error().errorDescription(), "respuesta ilegible");
}

TEST_F(CoreDeviceTest, aDeviceWithoutTheServiceIsTold)
{
    montar("com.apple.otro");
    EXPECT_EQ(leer().error().errorDescription(), "El dispositivo no ofrece el servicio de diagnóstico.");
}

TEST_F(CoreDeviceTest, aClosedServicePortIsTold)
{
    montar(servicio);
    conexiones.puertos.erase(50000);
    EXPECT_EQ(leer().error().errorDescription(), "Conexión: puerto 50000 cerrado");
}

TEST_F(CoreDeviceTest, aLockedDeviceIsTold)
{
    montar(servicio);
    conexiones.puertos.clear();
    EXPECT_EQ(leer().error().errorDescription(),
              "El dispositivo no respondió. Desbloquéalo y pulsa «Buscar de nuevo».");
}

TEST_F(CoreDeviceTest, aDeviceThatClosesAfterAnyByteEndsTheReading)
{
    montar(servicio);
    ASSERT_TRUE(leer());
    const std::size_t total = conexiones.reglas.dados;
    for (std::size_t corte = 0; corte < total; ++corte) {
        conexiones.reglas.quedan = corte;
        EXPECT_FALSE(leer()) << corte;
    }
    conexiones.reglas.quedan = total;
    EXPECT_TRUE(leer());
}
