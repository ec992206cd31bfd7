#include "tests/devices/UsbmuxdReal.h"

#include "core/plist/EscribirPlist.h"
#include "devices/Usbmux.h"
#include "platform/ConexionesPosix.h"
#include "tests/devices/ParejaDePrueba.h"

#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::chrono_literals;

namespace {

struct UsbmuxdRealTest : testing::Test
{
    UsbmuxdReal usbmuxd;
    ConexionesPosix conexiones{usbmuxd.socket()};
    const Plazo plazo{30s};

    void SetUp() override
    {
        if (!usbmuxd.escucha()) GTEST_SKIP() << "usbmuxd cannot be started here in a namespace of its own";
    }

    std::string fallo(const std::string &udid)
    {
        const auto leida = Usbmux::leer(conexiones, {.id = 99, .udid = udid, .porRed = false}, plazo);
        return leida ? "" : leida.error().errorDescription();
    }
};

} // namespace

TEST_F(UsbmuxdRealTest, withNothingAttachedTheListIsEmpty)
{
    const auto conectados = Usbmux::conectados(conexiones, plazo);
    ASSERT_TRUE(conectados) << conectados.error().errorDescription();
    EXPECT_THAT(*conectados, testing::IsEmpty());
}

TEST_F(UsbmuxdRealTest, aDeviceWithoutAPairRecordIsNotTrusted)
{
    EXPECT_EQ(fallo("00008110-000000000000001E"),
              "Este dispositivo no confía en el Mac. Desbloquéalo y acepta «Confiar en este ordenador».");
}

TEST_F(UsbmuxdRealTest, aDeviceThatIsPairedButNotAttachedRefusesTheConnection)
{
    const DiccionarioPlist ficha{{"HostCertificate", DatosPlist{parejaDePrueba().certificado}},
                                 {"HostPrivateKey", DatosPlist{parejaDePrueba().clave}},
                                 {"DeviceCertificate", DatosPlist{parejaDePrueba().certificado}},
                                 {"HostID", "ANFITRION"},
                                 {"SystemBUID", "BUID"}};
    std::ofstream(usbmuxd.fichaDe("paired-1")) << escribirPlistXml(ficha).value();
    EXPECT_EQ(fallo("paired-1"), "usbmuxd rechazó la conexión al dispositivo");
}
