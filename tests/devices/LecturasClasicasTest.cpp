#include "tests/devices/MesaDePrueba.h"

#include <algorithm>
#include <future>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

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

TEST(LecturasClasicas, twoDevicesAreReadSideBySide)
{
    Mesa una([](OpcionesDispositivo &opciones) { opciones.nombre = "uno"; });
    Mesa otra([](OpcionesDispositivo &opciones) { opciones.nombre = "otro"; });
    auto leida = std::async(std::launch::async, [&] { return una.leer(); });
    EXPECT_EQ(otra.leer(), esperada(otra.telefono->opciones()));
    EXPECT_EQ(leida.get(), esperada(una.telefono->opciones()));
}
