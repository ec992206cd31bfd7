#include "devices/Usbmux.h"
#include "platform/ConexionesPosix.h"
#include "tests/devices/DispositivosDePrueba.h"

#include <algorithm>
#include <future>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <thread>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

using Ajuste = std::function<void(OpcionesDispositivo &)>;

/// One simulated device behind a simulated usbmuxd, on real sockets.
struct Mesa
{
    explicit Mesa(const Ajuste &ajustar = {}, UsbmuxdSimulado::Opciones opciones = {})
        : telefono(dispositivo(ajustar)), usbmuxd({telefono}, std::move(opciones)), conexiones(usbmuxd.ruta())
    {
    }

    std::expected<LecturaBateriaIOS, ErrorIOS> leer(const Plazo &plazo = Plazo{60s})
    {
        const auto conectados = Usbmux::conectados(conexiones, plazo);
        if (!conectados) return std::unexpected(conectados.error());
        if (conectados->size() != 1) return std::unexpected(ErrorIOS::otro("no hay un dispositivo"));
        return Usbmux::leer(conexiones, conectados->front(), plazo);
    }
    std::string fallo(const Plazo &plazo = Plazo{60s})
    {
        const auto leida = leer(plazo);
        return leida ? "" : leida.error().errorDescription();
    }

    /// What the device saw, once it has seen so much: it writes that down at its own pace.
    std::vector<std::string> diario(std::size_t cuantas) const
    {
        for (const Plazo plazo{20s}; telefono->diario().lineas().size() < cuantas && !plazo.vencido();)
            std::this_thread::sleep_for(5ms);
        return telefono->diario().lineas();
    }

    std::shared_ptr<DispositivoSimulado> telefono;
    UsbmuxdSimulado usbmuxd;
    ConexionesPosix conexiones;
};

/// What the device would tell of itself.
LecturaBateriaIOS esperada(const OpcionesDispositivo &opciones)
{
    LecturaBateriaIOS lectura;
    lectura.nombre = opciones.nombre;
    lectura.modelo = opciones.modelo;
    lectura.clase = opciones.clase;
    lectura.version = opciones.version;
    lectura.transporte = opciones.conexion == "Network" ? "Wi-Fi" : "cable";
    lectura.registro = registroDeBateria(opciones.bateria);
    lectura.porcentaje = opciones.bateria.porcentaje;
    lectura.cargando = opciones.bateria.cargando;
    return lectura;
}

/// One byte at a time, with a pause behind each.
FallosSimulados goteo(std::chrono::milliseconds pausa)
{
    FallosSimulados fallos;
    fallos.trozo = 1;
    fallos.pausa = pausa;
    return fallos;
}

} // namespace

TEST(LecturasClasicas, aDeviceByCableAndOneByWiFiAreReadWhole)
{
    for (const char *conexion : {"USB", "Network"}) {
        Mesa mesa([&](OpcionesDispositivo &opciones) { opciones.conexion = conexion; });
        const auto leida = mesa.leer();
        ASSERT_TRUE(leida) << leida.error().errorDescription();
        EXPECT_EQ(*leida, esperada(mesa.telefono->opciones()));
    }
}

TEST(LecturasClasicas, everyTlsVersionAndKindOfKeyWorks)
{
    for (const VersionTls version : {VersionTls::tls10, VersionTls::tls12, VersionTls::tls13})
        for (const TipoDeClave clave : {TipoDeClave::rsa1024, TipoDeClave::rsa2048}) {
            Mesa mesa([&](OpcionesDispositivo &opciones) {
                opciones.tls = version;
                opciones.claveDelMac = opciones.claveDelDispositivo = clave;
            });
            const auto leida = mesa.leer();
            ASSERT_TRUE(leida) << leida.error().errorDescription();
            EXPECT_EQ(*leida, esperada(mesa.telefono->opciones()));
        }
}

TEST(LecturasClasicas, theChannelsAreEncryptedAsTheDeviceAsksForEachByItself)
{
    for (const std::optional<bool> sesion :
         {std::optional(true), std::optional(false), std::optional<bool>()})
        for (const std::optional<bool> servicio :
             {std::optional(true), std::optional(false), std::optional<bool>()}) {
            Mesa mesa([&](OpcionesDispositivo &opciones) {
                opciones.sesionCifrada = sesion;
                opciones.servicioCifrado = servicio;
            });
            ASSERT_TRUE(mesa.leer());
            const auto lineas = mesa.diario(7 + (sesion == true) + (servicio == true));
            EXPECT_EQ(std::ranges::count(lineas, "lockdown TLS"), sesion == true);
            EXPECT_EQ(std::ranges::count(lineas, "relé TLS"), servicio == true);
        }
}

TEST(LecturasClasicas, theDeviceSeesTheseRequestsInThisOrder)
{
    Mesa mesa;
    ASSERT_TRUE(mesa.leer());
    auto lineas = mesa.diario(9);
    // The farewell to the relay and the end of the session go their ways side by side.
    ASSERT_EQ(lineas.size(), 9u);
    std::sort(lineas.begin() + 7, lineas.end());
    EXPECT_THAT(lineas,
                ElementsAre("lockdown StartSession (Ovanta)", "lockdown TLS", "lockdown GetValue (Ovanta)",
                            "lockdown GetValue com.apple.mobile.battery (Ovanta)",
                            "lockdown StartService (Ovanta)", "relé TLS",
                            "relé IORegistry AppleSmartBattery (Ovanta)", "lockdown StopSession (Ovanta)",
                            "relé Goodbye (Ovanta)"));
    for (const std::string &linea : mesa.usbmuxd.diario().lineas())
        EXPECT_THAT(linea, HasSubstr("Ovanta"));
}

TEST(LecturasClasicas, aDeviceThatNeverTrustedThisMacIsTold)
{
    const std::string sinConfianza =
        "Este dispositivo no confía en el Mac. Desbloquéalo y acepta «Confiar en este ordenador».";
    EXPECT_EQ(Mesa([](OpcionesDispositivo &opciones) { opciones.deConfianza = false; }).fallo(),
              sinConfianza);
    for (const char *clave :
         {"HostCertificate", "HostPrivateKey", "DeviceCertificate", "HostID", "SystemBUID"})
        EXPECT_EQ(Mesa([&](OpcionesDispositivo &opciones) { opciones.clavesAusentes = {clave}; }).fallo(),
                  sinConfianza)
            << clave;
    EXPECT_THAT(Mesa([](OpcionesDispositivo &opciones) { opciones.registroIlegible = true; }).fallo(),
                StartsWith("Lista de propiedades ilegible"));
}

TEST(LecturasClasicas, aLockedDeviceIsToldInItsOwnWords)
{
    Mesa mesa([](OpcionesDispositivo &opciones) { opciones.bloqueado = true; });
    EXPECT_THAT(mesa.fallo(), StartsWith("StartService: "));
}

TEST(LecturasClasicas, aPairRecordInAnotherFormIsUnreadable)
{
    const std::string ilegible = "emparejamiento con certificados ilegibles";
    EXPECT_EQ(Mesa([](OpcionesDispositivo &opciones) { opciones.pemConRetornos = true; }).fallo(), ilegible);
    EXPECT_EQ(Mesa([](OpcionesDispositivo &opciones) {
                  opciones.claveDelMac = TipoDeClave::rsa2048;
                  opciones.clavePkcs8 = false;
              }).fallo(),
              ilegible);
}

TEST(LecturasClasicas, aDeviceWithAnotherCertificateIsNotTalkedTo)
{
    for (const CertificadoMostrado cual :
         {CertificadoMostrado::conUnByteDistinto, CertificadoMostrado::otro}) {
        Mesa mesa([&](OpcionesDispositivo &opciones) { opciones.certificadoMostrado = cual; });
        EXPECT_EQ(mesa.fallo(),
                  "Cifrado: el certificado del dispositivo no coincide con el emparejamiento (-1)");
        EXPECT_THAT(mesa.diario(2), ElementsAre("lockdown StartSession (Ovanta)", "lockdown TLS fallido"));
    }
}

TEST(LecturasClasicas, handshakesThatFailAreTold)
{
    for (const AlNegociar modo : {AlNegociar::cierra, AlNegociar::alerta, AlNegociar::basura}) {
        EXPECT_THAT(Mesa([&](OpcionesDispositivo &opciones) { opciones.alNegociarSesion = modo; }).fallo(),
                    StartsWith("Cifrado: negociación ("));
        EXPECT_THAT(Mesa([&](OpcionesDispositivo &opciones) { opciones.alNegociarServicio = modo; }).fallo(),
                    StartsWith("Cifrado: negociación ("));
    }
}

TEST(LecturasClasicas, aDeviceWithoutBatteryValuesIsReadAllTheSame)
{
    Mesa mesa([](OpcionesDispositivo &opciones) { opciones.conDominioDeBateria = false; });
    const auto leida = mesa.leer();
    ASSERT_TRUE(leida) << leida.error().errorDescription();
    EXPECT_EQ(leida->porcentaje, std::nullopt);
    EXPECT_EQ(leida->cargando, std::nullopt);
    EXPECT_FALSE(leida->registro.empty());
    EXPECT_TRUE(Mesa([](OpcionesDispositivo &opciones) {
                    opciones.fallosLockdown.errores = {
                        {"GetValue com.apple.mobile.battery", "GetProhibited"}};
                }).leer());
}

TEST(LecturasClasicas, aDeviceThatDoesNotTellTheHealthOfItsBatteryGivesTheRest)
{
    Mesa mesa([](OpcionesDispositivo &opciones) {
        opciones.bateria.capacidadDiseno.reset();
        opciones.bateria.capacidadNominal.reset();
    });
    const auto leida = mesa.leer();
    ASSERT_TRUE(leida);
    EXPECT_EQ(leida->registro.buscar("DesignCapacity"), nullptr);
    EXPECT_NE(leida->registro.buscar("CycleCount"), nullptr);
}

TEST(LecturasClasicas, aRelayWithoutARegistryIsTold)
{
    EXPECT_EQ(Mesa([](OpcionesDispositivo &opciones) {
                  opciones.estadoRele = "Failure";
                  opciones.conDiagnostico = false;
              }).fallo(),
              "El dispositivo no comparte los datos de la batería (Failure).");
    EXPECT_EQ(Mesa([](OpcionesDispositivo &opciones) {
                  opciones.estadoRele.reset();
                  opciones.registro = DiccionarioPlist{};
              }).fallo(),
              "El dispositivo no comparte los datos de la batería (sin estado).");
}

TEST(LecturasClasicas, aServiceThatDoesNotOpenIsTold)
{
    EXPECT_EQ(Mesa([](OpcionesDispositivo &opciones) { opciones.puertoRele.reset(); }).fallo(),
              "El dispositivo no abrió el servicio de diagnóstico.");
    EXPECT_EQ(Mesa([](OpcionesDispositivo &opciones) { opciones.rechazaConexiones = true; }).fallo(),
              "usbmuxd rechazó la conexión al dispositivo");
}

TEST(LecturasClasicas, errorsOfEachRequestAreToldButThoseOfTheFarewell)
{
    for (const char *pedido : {"StartSession", "GetValue", "StartService"})
        EXPECT_EQ(Mesa([&](OpcionesDispositivo &opciones) {
                      opciones.fallosLockdown.errores = {{pedido, "Roto"}};
                  }).fallo(),
                  std::string(pedido) + ": Roto");
    EXPECT_TRUE(Mesa([](OpcionesDispositivo &opciones) {
                    opciones.fallosLockdown.errores = {{"StopSession", "Roto"}};
                }).leer());
}

TEST(LecturasClasicas, aPeerThatClosesAtAnyStepIsToldAndTheFarewellIsNone)
{
    for (int paso = 0; paso < 4; ++paso)
        EXPECT_NE(Mesa([&](OpcionesDispositivo &opciones) {
                      opciones.fallosLockdown.cerrarEnElPaso = paso;
                  }).fallo(),
                  "")
            << paso;
    EXPECT_TRUE(
        Mesa([](OpcionesDispositivo &opciones) { opciones.fallosLockdown.cerrarEnElPaso = 4; }).leer());
    EXPECT_NE(Mesa([](OpcionesDispositivo &opciones) { opciones.fallosRele.cerrarEnElPaso = 0; }).fallo(),
              "");
    EXPECT_TRUE(Mesa([](OpcionesDispositivo &opciones) { opciones.fallosRele.cerrarEnElPaso = 1; }).leer());
}

TEST(LecturasClasicas, garbageAndLengthsThatLieEndTheReading)
{
    for (const std::uint32_t longitud : {0u, 1u, 0x2000000u, 0xFFFFFFFFu})
        EXPECT_NE(Mesa([&](OpcionesDispositivo &opciones) {
                      opciones.fallosRele.mentirEnElPaso = 0;
                      opciones.fallosRele.longitudMentida = longitud;
                  }).fallo(),
                  "")
            << longitud;
    EXPECT_THAT(Mesa([](OpcionesDispositivo &opciones) { opciones.fallosRele.basuraEnElPaso = 0; }).fallo(),
                StartsWith("Lista de propiedades ilegible"));
    UsbmuxdSimulado::Opciones deUsbmuxd;
    deUsbmuxd.fallos.mentirEnElPaso = 0;
    deUsbmuxd.fallos.longitudMentida = 0x1FFFFFF;
    EXPECT_EQ(Mesa({}, deUsbmuxd).fallo(), "respuesta de usbmuxd ilegible");
}

TEST(LecturasClasicas, pieceByPieceTheReadingIsTheSame)
{
    UsbmuxdSimulado::Opciones deUsbmuxd;
    deUsbmuxd.fallos.trozo = 1;
    Mesa mesa(
        [](OpcionesDispositivo &opciones) { opciones.fallosLockdown.trozo = opciones.fallosRele.trozo = 1; },
        deUsbmuxd);
    const auto leida = mesa.leer();
    ASSERT_TRUE(leida) << leida.error().errorDescription();
    EXPECT_EQ(*leida, esperada(mesa.telefono->opciones()));
}

TEST(LecturasClasicas, theTotalBoundHoldsAgainstAPeerThatDrips)
{
    const std::string tarde = "Conexión: el dispositivo no respondió a tiempo";
    UsbmuxdSimulado::Opciones deUsbmuxd;
    deUsbmuxd.fallos = goteo(300ms);
    EXPECT_EQ(Mesa({}, deUsbmuxd).fallo(Plazo{1s}), tarde);
    Mesa mesa([](OpcionesDispositivo &opciones) {
        opciones.servicioCifrado = false;
        opciones.fallosRele = goteo(300ms);
    });
    EXPECT_EQ(mesa.fallo(Plazo{2s}), tarde);
}

TEST(LecturasClasicas, aReadingIsGivenUpFromAnotherThread)
{
    Mesa mesa([](OpcionesDispositivo &opciones) { opciones.fallosLockdown.callarEnElPaso = 1; });
    const Plazo plazo{60s};
    auto leida = std::async(std::launch::async, [&] { return mesa.leer(plazo); });
    std::this_thread::sleep_for(300ms);
    plazo.rendir();
    ASSERT_EQ(leida.wait_for(20s), std::future_status::ready);
    EXPECT_FALSE(leida.get());
}

TEST(LecturasClasicas, twoDevicesAreReadSideBySide)
{
    Mesa una([](OpcionesDispositivo &opciones) { opciones.nombre = "uno"; });
    Mesa otra([](OpcionesDispositivo &opciones) { opciones.nombre = "otro"; });
    auto leida = std::async(std::launch::async, [&] { return una.leer(); });
    EXPECT_EQ(otra.leer(), esperada(otra.telefono->opciones()));
    EXPECT_EQ(leida.get(), esperada(una.telefono->opciones()));
}
