#include "tests/devices/MesaDePrueba.h"

#include <future>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <thread>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::chrono_literals;
using testing::StartsWith;

namespace {

/// One byte at a time, with a pause behind each.
FallosSimulados goteo(std::chrono::milliseconds pausa)
{
    FallosSimulados fallos;
    fallos.trozo = 1;
    fallos.pausa = pausa;
    return fallos;
}

} // namespace

TEST(LecturasClasicasFallos, handshakesThatFailAreTold)
{
    for (const AlNegociar modo : {AlNegociar::cierra, AlNegociar::alerta, AlNegociar::basura}) {
        EXPECT_THAT(Mesa([&](OpcionesDispositivo &opciones) { opciones.alNegociarSesion = modo; }).fallo(),
                    StartsWith("Cifrado: negociación ("));
        EXPECT_THAT(Mesa([&](OpcionesDispositivo &opciones) { opciones.alNegociarServicio = modo; }).fallo(),
                    StartsWith("Cifrado: negociación ("));
    }
}

TEST(LecturasClasicasFallos, aRelayWithoutARegistryIsTold)
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

TEST(LecturasClasicasFallos, aServiceThatDoesNotOpenIsTold)
{
    EXPECT_EQ(Mesa([](OpcionesDispositivo &opciones) { opciones.puertoRele.reset(); }).fallo(),
              "El dispositivo no abrió el servicio de diagnóstico.");
    EXPECT_EQ(Mesa([](OpcionesDispositivo &opciones) { opciones.rechazaConexiones = true; }).fallo(),
              "usbmuxd rechazó la conexión al dispositivo");
}

TEST(LecturasClasicasFallos, errorsOfEachRequestAreToldButThoseOfTheFarewell)
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

TEST(LecturasClasicasFallos, aPeerThatClosesAtAnyStepIsToldAndTheFarewellIsNone)
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

TEST(LecturasClasicasFallos, garbageAndLengthsThatLieEndTheReading)
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

TEST(LecturasClasicasFallos, theTotalBoundHoldsAgainstAPeerThatDrips)
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

TEST(LecturasClasicasFallos, aReadingIsGivenUpFromAnotherThread)
{
    Mesa mesa([](OpcionesDispositivo &opciones) { opciones.fallosLockdown.callarEnElPaso = 1; });
    const Plazo plazo{60s};
    auto leida = std::async(std::launch::async, [&] { return mesa.leer(plazo); });
    std::this_thread::sleep_for(300ms);
    plazo.rendir();
    ASSERT_EQ(leida.wait_for(20s), std::future_status::ready);
    EXPECT_FALSE(leida.get());
}
