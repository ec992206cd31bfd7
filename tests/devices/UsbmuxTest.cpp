#include "tests/devices/UsbmuxEnMemoria.h"

#include <gmock/gmock.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using UsbmuxTest = UsbmuxEnMemoria;

} // namespace

TEST_F(UsbmuxTest, aReadingTakesTheseRequestsInThisOrder)
{
    ASSERT_TRUE(leer());
    EXPECT_THAT(telefono.pedidos, ElementsAre("ReadPairRecord", "Connect", "StartSession", "GetValue",
                                              "GetValue com.apple.mobile.battery", "StartService", "Connect",
                                              "IORegistry", "Goodbye", "StopSession"));
    EXPECT_THAT(telefono.puertos, ElementsAre(32498, 0x3412));
    EXPECT_EQ(conexiones.reglas.abiertos, 0);
}

TEST_F(UsbmuxTest, eachRequestCarriesExactlyTheseKeys)
{
    ASSERT_TRUE(leer());
    const auto deUsbmuxd = [](DiccionarioPlist claves) {
        claves.poner("ClientVersionString", "Ovanta");
        claves.poner("ProgName", "Ovanta");
        return claves;
    };
    const DiccionarioPlist conectar{{"MessageType", "Connect"}, {"DeviceID", 7}};
    DiccionarioPlist primero = conectar, segundo = conectar;
    primero.poner("PortNumber", 32498);
    segundo.poner("PortNumber", 0x3412);
    EXPECT_THAT(
        telefono.mensajes,
        ElementsAre(
            deUsbmuxd({{"MessageType", "ReadPairRecord"}, {"PairRecordID", "00008110-1"}}),
            deUsbmuxd(primero),
            DiccionarioPlist{{"Label", "Ovanta"},
                             {"Request", "StartSession"},
                             {"HostID", "ANFITRION"},
                             {"SystemBUID", "BUID"}},
            DiccionarioPlist{{"Label", "Ovanta"}, {"Request", "GetValue"}},
            DiccionarioPlist{
                {"Label", "Ovanta"}, {"Request", "GetValue"}, {"Domain", "com.apple.mobile.battery"}},
            DiccionarioPlist{{"Label", "Ovanta"},
                             {"Request", "StartService"},
                             {"Service", "com.apple.mobile.diagnostics_relay"}},
            deUsbmuxd(segundo),
            DiccionarioPlist{
                {"Label", "Ovanta"}, {"Request", "IORegistry"}, {"EntryName", "AppleSmartBattery"}},
            DiccionarioPlist{{"Label", "Ovanta"}, {"Request", "Goodbye"}},
            DiccionarioPlist{{"Label", "Ovanta"}, {"Request", "StopSession"}, {"SessionID", "SESION"}}));
}

TEST_F(UsbmuxTest, aReadingIsFilledFieldByField)
{
    LecturaBateriaIOS esperada;
    esperada.nombre = "iPhone de Ana";
    esperada.modelo = "iPhone14,2";
    esperada.clase = "iPhone";
    esperada.version = "17.5.1";
    esperada.transporte = "cable";
    esperada.registro = telefono.registro;
    esperada.porcentaje = 81;
    esperada.cargando = true;
    EXPECT_EQ(leer(), esperada);
    esperada.transporte = "Wi-Fi";
    EXPECT_EQ(leer({.id = 7, .udid = "u", .porRed = true}), esperada);
}

TEST_F(UsbmuxTest, repliesInPiecesOfAnySizeGiveTheSameReading)
{
    const auto entera = leer();
    ASSERT_TRUE(entera);
    for (std::size_t trozo = 1; trozo <= 40; ++trozo) {
        conexiones.reglas.trozo = trozo;
        EXPECT_EQ(leer(), entera) << trozo;
    }
}

TEST_F(UsbmuxTest, devicesAreListedInTheOrderOfUsbmuxd)
{
    const auto uno = [](int id, const char *serie, const char *tipo) {
        return DiccionarioPlist{
            {"DeviceID", id},
            {"Properties", DiccionarioPlist{{"SerialNumber", serie}, {"ConnectionType", tipo}}}};
    };
    telefono.respuestas["ListDevices"] =
        DiccionarioPlist{{"DeviceList", ListaPlist{uno(9, "z", "USB"), uno(2, "a", "Network")}}};
    EXPECT_THAT(*Usbmux::conectados(conexiones, sobrado),
                ElementsAre(Usbmux::Dispositivo{9, "z", false}, Usbmux::Dispositivo{2, "a", true}));
    EXPECT_THAT(telefono.mensajes, ElementsAre(DiccionarioPlist{{"MessageType", "ListDevices"},
                                                                {"ClientVersionString", "Ovanta"},
                                                                {"ProgName", "Ovanta"}}));
}

TEST_F(UsbmuxTest, aListWithoutDeviceListIsEmptyAndNoError)
{
    telefono.respuestas["ListDevices"] = DiccionarioPlist{{"Number", 0}};
    EXPECT_THAT(*Usbmux::conectados(conexiones, sobrado), IsEmpty());
}

TEST_F(UsbmuxTest, aDeviceWithoutBatteryValuesStillGivesAReading)
{
    for (const ValorPlist &valor :
         {ValorPlist(DiccionarioPlist{{"Value", DiccionarioPlist{}}}), ValorPlist(DiccionarioPlist{}),
          ValorPlist(DiccionarioPlist{{"Value", "texto"}}),
          ValorPlist(DiccionarioPlist{
              {"Value", DiccionarioPlist{{"BatteryCurrentCapacity", "81"}, {"BatteryIsCharging", "sí"}}}})}) {
        const auto leida = leerCon("GetValue com.apple.mobile.battery", valor);
        ASSERT_TRUE(leida);
        EXPECT_EQ(leida->porcentaje, std::nullopt);
        EXPECT_EQ(leida->cargando, std::nullopt);
        EXPECT_EQ(leida->registro, telefono.registro);
    }
}

TEST_F(UsbmuxTest, aBatteryDomainThatReturnsAnErrorDoesNotStopTheReading)
{
    const auto leida = leerCon("GetValue com.apple.mobile.battery", conError);
    ASSERT_TRUE(leida);
    EXPECT_EQ(leida->porcentaje, std::nullopt);
    EXPECT_EQ(leida->nombre, "iPhone de Ana");
}

TEST_F(UsbmuxTest, deviceInformationOfAnotherTypeCountsAsAbsent)
{
    const auto leida = leerCon(
        "GetValue", DiccionarioPlist{{"Value", DiccionarioPlist{{"DeviceName", 7}, {"ProductType", "x"}}}});
    ASSERT_TRUE(leida);
    EXPECT_EQ(leida->nombre, std::nullopt);
    EXPECT_EQ(leida->modelo, "x");
    EXPECT_EQ(leida->version, std::nullopt);
    EXPECT_TRUE(leerCon("GetValue", DiccionarioPlist{{"Value", "nada"}}));
    EXPECT_TRUE(leerCon("GetValue", DiccionarioPlist{}));
}

TEST_F(UsbmuxTest, aSessionWithoutAnIdIsStoppedWithTheEmptyText)
{
    ASSERT_TRUE(leerCon("StartSession", DiccionarioPlist{}));
    EXPECT_EQ(*telefono.mensajes.back().valor<std::string>("SessionID"), "");
}

TEST_F(UsbmuxTest, everyMessageToUsbmuxdStartsWithTheSameHeader)
{
    ASSERT_TRUE(leer());
    std::vector<std::string> resto;
    for (const std::string &cabecera : telefono.cabeceras)
        resto.push_back(cabecera.substr(4));
    EXPECT_THAT(resto, Each(std::string("\1\0\0\0\x8\0\0\0\1\0\0\0", 12)));
    EXPECT_EQ(resto.size(), 3u);
}
