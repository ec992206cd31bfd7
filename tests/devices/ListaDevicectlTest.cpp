#include "devices/ListaDevicectl.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace ovanta;
using nlohmann::json;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

json aparato()
{
    return json::parse(R"({
        "identifier": "A1B2",
        "connectionProperties": {"transportType": "localNetwork", "pairingState": "paired"},
        "hardwareProperties": {"udid": "00008110-1", "productType": "iPhone14,2",
                               "marketingName": "iPhone 13 Pro", "deviceType": "iPhone"},
        "deviceProperties": {"name": "iPhone de Ana", "osVersionNumber": "17.5.1"}})");
}

std::vector<CoreDevice::Dispositivo> lista(const json &ficha)
{
    return CoreDevice::dispositivosDe({{"devices", json::array({ficha})}});
}

CoreDevice::Dispositivo unico(const json &ficha)
{
    const auto todos = lista(ficha);
    EXPECT_EQ(todos.size(), 1u);
    return todos.empty() ? CoreDevice::Dispositivo{} : todos.front();
}

const ErrorIOS sinDatos = ErrorIOS::protocolo("Xcode no devolvió datos del dispositivo.");

} // namespace

TEST(ListaDevicectl, aDeviceIsReadFieldByField)
{
    const CoreDevice::Dispositivo esperado{.id = "A1B2",
                                           .udid = "00008110-1",
                                           .nombre = "iPhone de Ana",
                                           .modelo = "iPhone14,2",
                                           .marketing = "iPhone 13 Pro",
                                           .clase = "iPhone",
                                           .version = "17.5.1",
                                           .transporte = "Wi-Fi"};
    EXPECT_EQ(unico(aparato()), esperado);
}

TEST(ListaDevicectl, everyOtherTransportIsACable)
{
    for (const char *transporte : {"wired", "", "LocalNetwork", "localNetwork "}) {
        json ficha = aparato();
        ficha["connectionProperties"]["transportType"] = transporte;
        EXPECT_EQ(unico(ficha).transporte, "cable") << transporte;
    }
}

TEST(ListaDevicectl, aDeviceWithoutANameKeepsTheRestOfItsRow)
{
    json ficha = aparato();
    ficha["deviceProperties"].erase("name");
    EXPECT_EQ(unico(ficha).nombre, std::nullopt);
    EXPECT_EQ(unico(ficha).version, "17.5.1");
    ficha.erase("deviceProperties");
    EXPECT_EQ(unico(ficha).version, std::nullopt);
    EXPECT_EQ(unico(ficha).modelo, "iPhone14,2");
}

TEST(ListaDevicectl, aValueOfAWrongTypeCountsAsAbsent)
{
    json ficha = aparato();
    ficha["deviceProperties"]["name"] = 7;
    ficha["hardwareProperties"]["deviceType"] = nullptr;
    EXPECT_EQ(unico(ficha).nombre, std::nullopt);
    EXPECT_EQ(unico(ficha).clase, std::nullopt);
    ficha["deviceProperties"] = json::array({1});
    EXPECT_EQ(unico(ficha).version, std::nullopt);
}

TEST(ListaDevicectl, aDeviceWithoutTransportIdOrUdidIsSkipped)
{
    for (const char *campo :
         {"/connectionProperties/transportType", "/identifier", "/hardwareProperties/udid"})
        for (const json &valor : {json(), json(7), json::object()}) {
            json ficha = aparato();
            ficha[json::json_pointer(campo)] = valor;
            EXPECT_THAT(CoreDevice::dispositivosDe({{"devices", {ficha, aparato()}}}),
                        ElementsAre(unico(aparato())))
                << campo;
        }
    for (const char *campo : {"connectionProperties", "identifier", "hardwareProperties"}) {
        json ficha = aparato();
        ficha.erase(campo);
        EXPECT_THAT(lista(ficha), IsEmpty()) << campo;
    }
}

TEST(ListaDevicectl, devicesOfAnotherTypeGiveAnEmptyList)
{
    for (const char *resultado : {"{}", R"({"devices": null})", R"({"devices": {"a": 1}})",
                                  R"({"devices": "x"})", R"({"devices": [1, "x", [], null]})"})
        EXPECT_THAT(CoreDevice::dispositivosDe(json::parse(resultado)), IsEmpty()) << resultado;
}

TEST(ListaDevicectl, theAddressIsThatOfAConnectedTunnelOnly)
{
    const auto direccion = [](const char *resultado) {
        return CoreDevice::direccionDe(json::parse(resultado));
    };
    EXPECT_EQ(
        direccion(R"({"connectionProperties":{"tunnelState":"connected","tunnelIPAddress":"fd00::1"}})"),
        "fd00::1");
    for (const char *resultado :
         {"{}", R"({"connectionProperties":{}})", R"({"connectionProperties":"connected"})",
          R"({"connectionProperties":{"tunnelState":"disconnected","tunnelIPAddress":"fd00::1"}})",
          R"({"connectionProperties":{"tunnelState":true,"tunnelIPAddress":"fd00::1"}})",
          R"({"connectionProperties":{"tunnelState":"connected"}})",
          R"({"connectionProperties":{"tunnelState":"connected","tunnelIPAddress":1}})",
          R"({"connectionProperties":{"tunnelIPAddress":"fd00::1"}})"})
        EXPECT_EQ(direccion(resultado), std::nullopt) << resultado;
}

TEST(ListaDevicectl, theResultMustBeADictionary)
{
    EXPECT_EQ(CoreDevice::resultadoDe(R"({"info":{},"result":{"a":1}})"), json({{"a", 1}}));
    for (const char *archivo : {"", "{}", "[]", "7", R"({"result":[]})", R"({"result":"x"})",
                                R"({"result":null})", R"([{"result":{}}])"})
        EXPECT_EQ(CoreDevice::resultadoDe(archivo).error(), sinDatos) << archivo;
}

TEST(ListaDevicectl, whatIsNoJsonIsTold)
{
    for (const std::string &archivo :
         {std::string("{\"result\":{}"), std::string("Error: x"), std::string("{}{}"),
          std::string("{\"result\":{\"a\":\"\xFF\"}}"), std::string("\0", 1)}) {
        const auto resultado = CoreDevice::resultadoDe(archivo);
        ASSERT_FALSE(resultado);
        EXPECT_EQ(resultado.error().errorDescription(), "La respuesta de devicectl no es JSON válido.");
    }
}

TEST(ListaDevicectl, aResultNestedWithoutEndIsRefused)
{
    EXPECT_TRUE(
        CoreDevice::resultadoDe(R"({"result":{"a":)" + std::string(60, '[') + std::string(60, ']') + "}}"));
    EXPECT_FALSE(CoreDevice::resultadoDe(R"({"result":{"a":)" + std::string(200'000, '[')));
    EXPECT_FALSE(CoreDevice::resultadoDe(R"({"result":{"a":)" + std::string(200'000, '[') +
                                         std::string(200'000, ']') + "}}"));
}
