#include "devices/CoreDevice.h"
#include "devices/RSD.h"
#include "devices/Usbmux.h"
#include "platform/simulada/PlataformaSimulada.h"
#include "tests/devices/DispositivosDePrueba.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Key;
using testing::Pair;
using testing::SizeIs;
using testing::StartsWith;

namespace {

const std::string rele = "com.apple.mobile.diagnostics_relay.shim.remote";

/// An address of this machine where no other test listens.
std::string direccionPropia()
{
    static int cuantas = 0;
    const int pid = ::getpid();
    return "::ffff:127." + std::to_string(1 + pid % 250) + '.' + std::to_string(pid / 250 % 250) + '.' +
           std::to_string(1 + ++cuantas % 250);
}

/// The end of a tunnel and what its discovery tells over real sockets.
struct Tunel
{
    explicit Tunel(std::vector<OpcionesRsd> opciones)
        : puertos(dispositivo(), std::move(opciones), direccionPropia())
    {
    }

    std::expected<ServiciosRSD, ErrorIOS> servicios(const Plazo &plazo = Plazo{60s})
    {
        return RSD::servicios(conexiones, puertos.direccion(), plazo);
    }

    PuertosRsdSimulados puertos;
    ConexionesPosix conexiones;
};

/// Scripted tools that hand over to one simulated `devicectl`.
struct Herramienta final : Herramientas
{
    explicit Herramienta(FichaDevicectl ficha) : devicectl({std::move(ficha)}) {}

    std::string ejecutar(const std::string &, const std::vector<std::string> &args, double, bool) override
    {
        return devicectl.responder(args);
    }
    std::optional<std::string> buscarBinario(std::string_view) override { return "/usr/bin/xcrun"; }

    DevicectlSimulado devicectl;
};

PlataformaSimulada::Opciones opcionesDelMac()
{
    return {.recursos = "", .relojDetenido = leerISO8601("2026-11-21T10:00:00Z"), .apariencia = {}};
}

OpcionesRsd puerto(OpcionesRsd::Clase clase, std::optional<std::uint16_t> numero = std::nullopt)
{
    OpcionesRsd opciones;
    opciones.clase = clase;
    opciones.puerto = numero;
    return opciones;
}

} // namespace

TEST(LecturasCoreDevice, aDiscoveryTellsItsServicesOnEitherStreamHoweverItIsCut)
{
    for (const std::uint32_t flujo : {1u, 3u})
        for (const std::size_t fragmento : {0u, 29u, 64u}) {
            OpcionesRsd opciones;
            opciones.flujoDeServicios = flujo;
            opciones.fragmento = fragmento;
            opciones.entrelazado = opciones.conAcuse = opciones.conVacias = true;
            opciones.conPalabraDesconocida = true;
            Tunel tunel({opciones});
            const auto servicios = tunel.servicios();
            ASSERT_TRUE(servicios) << servicios.error().texto << flujo << '/' << fragmento;
            EXPECT_THAT(*servicios, Contains(Pair(rele, tunel.puertos.puertoRele())));
        }
}

TEST(LecturasCoreDevice, theDiscoverySeesTheseFrames)
{
    Tunel tunel({OpcionesRsd{}});
    ASSERT_TRUE(tunel.servicios());
    auto tramas = tunel.puertos.diario().lineas();
    ASSERT_GE(tramas.size(), 7u);
    tramas.resize(7);
    const std::string vacia = "920BB029";
    const std::string nada(32, '0');
    EXPECT_THAT(tramas, ElementsAre("4 0 0 000300000064000400100000", "8 0 0 000F0001", StartsWith("1 4 1"),
                                    StartsWith("0 0 1 " + vacia + "010000001400000000000000"),
                                    "0 0 1 " + vacia + "01020000" + nada, StartsWith("1 4 3"),
                                    "0 0 3 " + vacia + "01004000" + nada));
}

TEST(LecturasCoreDevice, portsThatAreSomethingElseArePassedOver)
{
    using enum OpcionesRsd::Clase;
    Tunel tunel({puerto(cierra), puerto(basura), puerto(despedida), puerto(sinFin),
                 puerto(verdadero, ultimoPuertoRsd)});
    const auto servicios = tunel.servicios();
    ASSERT_TRUE(servicios) << servicios.error().texto;
    EXPECT_THAT(*servicios, Contains(Key(rele)));
}

TEST(LecturasCoreDevice, aSilentPortIsPassedOver)
{
    using enum OpcionesRsd::Clase;
    Tunel tunel({puerto(silencioso), puerto(verdadero)});
    EXPECT_TRUE(tunel.servicios());
}

TEST(LecturasCoreDevice, anImpossibleLengthIsNeverReserved)
{
    Tunel tunel({puerto(OpcionesRsd::Clase::longitudImposible)});
    EXPECT_FALSE(tunel.servicios(Plazo{6s}));
}

TEST(LecturasCoreDevice, theTotalBoundHoldsAgainstADiscoveryThatDrips)
{
    OpcionesRsd opciones;
    opciones.fallos.trozo = 1;
    opciones.fallos.pausa = 300ms;
    Tunel tunel({opciones});
    EXPECT_EQ(tunel.servicios(Plazo{1500ms}).error(),
              ErrorIOS::socket("el dispositivo no respondió a tiempo"));
}

TEST(LecturasCoreDevice, aDeviceIsReadThroughItsTunnel)
{
    const auto telefono = dispositivo();
    Herramienta herramienta({telefono, "ID-1", "localNetwork", {"disconnected", "connected"}});
    ConexionesPosix conexiones;
    const auto lista = CoreDevice::conectados(herramienta, Plazo{60s});
    ASSERT_TRUE(lista && lista->size() == 1);
    const auto leida = CoreDevice::leer(herramienta, conexiones, lista->front(), Plazo{60s});
    ASSERT_TRUE(leida) << leida.error().errorDescription();
    const OpcionesDispositivo &opciones = telefono->opciones();
    LecturaBateriaIOS esperada;
    esperada.nombre = opciones.nombre;
    esperada.modelo = opciones.modelo;
    esperada.marketing = opciones.marketing;
    esperada.clase = opciones.clase;
    esperada.version = opciones.version;
    esperada.transporte = "Wi-Fi";
    esperada.registro = registroDeBateria(opciones.bateria);
    EXPECT_EQ(*leida, esperada);
    EXPECT_EQ(lista->front().udid, opciones.udid);
}

TEST(LecturasCoreDevice, aTunnelThatDoesNotOpenIsTold)
{
    Herramienta herramienta({dispositivo(), "ID-1", "wired", {"disconnected"}});
    ConexionesPosix conexiones;
    const auto lista = CoreDevice::conectados(herramienta, Plazo{60s});
    ASSERT_TRUE(lista && lista->size() == 1);
    EXPECT_EQ(
        CoreDevice::leer(herramienta, conexiones, lista->front(), Plazo{60s}).error().errorDescription(),
        "No se pudo abrir la conexión con el dispositivo. Desbloquéalo e inténtalo de nuevo.");
}

TEST(LecturasCoreDevice, theHouseholdOfTheSimulatedMacIsReadByBothRoads)
{
    PlataformaSimulada mac{opcionesDelMac()};
    const auto porXcode = CoreDevice::conectados(mac.herramientas(), Plazo{60s});
    ASSERT_TRUE(porXcode);
    EXPECT_THAT(*porXcode, SizeIs(2)); // a third one is away
    for (const auto &uno : *porXcode) {
        const auto leida = CoreDevice::leer(mac.herramientas(), mac.conexiones(), uno, Plazo{60s});
        EXPECT_TRUE(leida || leida.error().caso == ErrorIOS::Caso::protocolo) << *uno.nombre;
    }
    const auto porUsbmuxd = Usbmux::conectados(mac.conexiones(), Plazo{60s});
    ASSERT_TRUE(porUsbmuxd);
    EXPECT_THAT(*porUsbmuxd, SizeIs(5));
    std::vector<std::string> fallos;
    int leidas = 0;
    for (const auto &uno : *porUsbmuxd) {
        const auto leida = Usbmux::leer(mac.conexiones(), uno, Plazo{60s});
        if (!leida) fallos.push_back(leida.error().errorDescription());
        leidas += leida.has_value();
    }
    EXPECT_EQ(leidas, 4);
    EXPECT_THAT(fallos, ElementsAre(StartsWith("Este dispositivo no confía en el Mac.")));
}
