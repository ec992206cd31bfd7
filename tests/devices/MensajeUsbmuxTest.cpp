#include "devices/MensajeUsbmux.h"

#include "core/plist/EscribirPlist.h"
#include "core/plist/LeerPlist.h"
#include "tests/devices/BytesXPC.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const ErrorIOS ilegible = ErrorIOS::protocolo("respuesta de usbmuxd ilegible");
const ErrorIOS sinConfianza = ErrorIOS::protocolo(
    "Este dispositivo no confía en el Mac. Desbloquéalo y acepta «Confiar en este ordenador».");

DiccionarioPlist ficha()
{
    return {{"HostCertificate", DatosPlist{"c"}},
            {"HostPrivateKey", DatosPlist{"k"}},
            {"DeviceCertificate", DatosPlist{"d"}},
            {"HostID", "h"},
            {"SystemBUID", "b"},
            {"EscrowBag", DatosPlist{"e"}}};
}

std::expected<Usbmux::Emparejamiento, ErrorIOS> emparejar(const ValorPlist &ficha)
{
    return Usbmux::emparejamientoDe({{"PairRecordData", DatosPlist{escribirPlistXml(ficha).value()}}});
}

ValorPlist entrada(ValorPlist id, ValorPlist serie, std::optional<ValorPlist> tipo)
{
    DiccionarioPlist propiedades{{"SerialNumber", std::move(serie)}};
    if (tipo) propiedades.poner("ConnectionType", *std::move(tipo));
    return DiccionarioPlist{{"DeviceID", std::move(id)}, {"Properties", std::move(propiedades)}};
}

} // namespace

TEST(MensajeUsbmux, aRequestIsTheseBytes)
{
    const std::string plist = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                              "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                              "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                              "<plist version=\"1.0\">\n"
                              "<dict>\n"
                              "\t<key>ClientVersionString</key>\n"
                              "\t<string>Ovanta</string>\n"
                              "\t<key>MessageType</key>\n"
                              "\t<string>ListDevices</string>\n"
                              "\t<key>ProgName</key>\n"
                              "\t<string>Ovanta</string>\n"
                              "</dict>\n"
                              "</plist>\n";
    EXPECT_EQ(Usbmux::mensaje({{"MessageType", "ListDevices"}}).value(),
              le(16 + plist.size(), 4) + std::string("\1\0\0\0\x8\0\0\0\1\0\0\0", 12) + plist);
}

TEST(MensajeUsbmux, theNamesOfTheProgramReplaceThoseOfTheRequest)
{
    const std::string bytes = Usbmux::mensaje({{"ProgName", "otro"}, {"X", 1}}).value();
    const auto plist = leerPlist(bytes.substr(16));
    ASSERT_TRUE(plist);
    EXPECT_EQ(
        *plist,
        (ValorPlist(DiccionarioPlist{{"ClientVersionString", "Ovanta"}, {"ProgName", "Ovanta"}, {"X", 1}})));
}

TEST(MensajeUsbmux, whatCannotBeWrittenIsPassedOn)
{
    const auto fallo = Usbmux::mensaje({{"PairRecordID", "\xFF"}});
    ASSERT_FALSE(fallo);
    EXPECT_EQ(fallo.error().caso, ErrorIOS::Caso::otro);
}

TEST(MensajeUsbmux, thePortIsSentWithItsBytesSwapped)
{
    EXPECT_EQ(Usbmux::puertoDeRed(62078), 32498);
    EXPECT_EQ(Usbmux::puertoDeRed(0x1234), 0x3412);
    EXPECT_EQ(Usbmux::puertoDeRed(0), 0);
    EXPECT_EQ(Usbmux::puertoDeRed(0xFFFF), 0xFFFF);
}

TEST(MensajeUsbmux, theLengthOfAReplyLiesBetweenSixteenAndItsLimit)
{
    const auto siguen = [](std::uint32_t largo) {
        return Usbmux::bytesQueSiguen(le(largo, 4) + std::string(12, '\xFF'));
    };
    EXPECT_EQ(siguen(16), 0u);
    EXPECT_EQ(siguen(17), 1u);
    EXPECT_EQ(siguen(33'554'431), 33'554'415u);
    for (const std::uint32_t largo : {0u, 1u, 15u, 33'554'432u, 0x80000000u, 0xFFFFFFFFu})
        EXPECT_EQ(siguen(largo).error(), ilegible) << largo;
}

TEST(MensajeUsbmux, aReplyThatIsNoDictionaryIsUnreadable)
{
    EXPECT_TRUE(Usbmux::interpretarRespuesta(escribirPlistXml(DiccionarioPlist{{"a", 1}}).value()));
    EXPECT_EQ(Usbmux::interpretarRespuesta(escribirPlistXml(ListaPlist{}).value()).error(), ilegible);
    EXPECT_EQ(Usbmux::interpretarRespuesta(escribirPlistXml("texto").value()).error(), ilegible);
}

TEST(MensajeUsbmux, aParserErrorOfAReplyIsPassedOn)
{
    for (const char *plist : {"", "x", "<plist>", "bplist00"}) {
        const auto leida = Usbmux::interpretarRespuesta(plist);
        ASSERT_FALSE(leida) << plist;
        EXPECT_EQ(leida.error(), ErrorIOS::otro(leerPlist(plist).error().descripcion()));
    }
}

TEST(MensajeUsbmux, aReplyWithoutADeviceListYieldsAnEmptyList)
{
    EXPECT_THAT(Usbmux::dispositivosDe({}), IsEmpty());
    EXPECT_THAT(Usbmux::dispositivosDe({{"DeviceList", "x"}}), IsEmpty());
    EXPECT_THAT(Usbmux::dispositivosDe({{"DeviceList", DiccionarioPlist{}}}), IsEmpty());
    EXPECT_THAT(Usbmux::dispositivosDe({{"DeviceList", ListaPlist{}}}), IsEmpty());
}

TEST(MensajeUsbmux, anEntryThatLacksSomethingIsLeftOutAndTheOthersStay)
{
    const ListaPlist lista{
        entrada(1, "uno", "USB"),
        DiccionarioPlist{{"DeviceID", 2}, {"Properties", DiccionarioPlist{{"Sin", "serie"}}}},
        entrada(3, 3, "USB"),
        entrada("4", "cuatro", "USB"),
        DiccionarioPlist{{"DeviceID", 5}},
        DiccionarioPlist{{"Properties", DiccionarioPlist{{"SerialNumber", "seis"}}}},
        "siete",
        entrada(8, "ocho", "USB")};
    EXPECT_THAT(Usbmux::dispositivosDe({{"DeviceList", lista}}),
                ElementsAre(Usbmux::Dispositivo{1, "uno", false}, Usbmux::Dispositivo{8, "ocho", false}));
}

TEST(MensajeUsbmux, onlyTheConnectionTypeNetworkIsPorRed)
{
    const ListaPlist lista{entrada(1, "a", "Network"), entrada(2, "b", "USB"), entrada(3, "c", std::nullopt),
                           entrada(4, "d", true), entrada(5, "e", "network")};
    std::vector<bool> porRed;
    for (const auto &uno : Usbmux::dispositivosDe({{"DeviceList", lista}}))
        porRed.push_back(uno.porRed);
    EXPECT_THAT(porRed, ElementsAre(true, false, false, false, false));
}

TEST(MensajeUsbmux, aPairRecordIsReadFieldByField)
{
    const Usbmux::Emparejamiento esperado{
        .certificado = "c", .clave = "k", .certificadoDispositivo = "d", .hostID = "h", .systemBUID = "b"};
    EXPECT_EQ(emparejar(ficha()), esperado);
}

TEST(MensajeUsbmux, aMissingOrIncompletePairRecordAsksForTrust)
{
    EXPECT_EQ(Usbmux::emparejamientoDe({}).error(), sinConfianza);
    EXPECT_EQ(Usbmux::emparejamientoDe({{"Number", 2}}).error(), sinConfianza);
    EXPECT_EQ(Usbmux::emparejamientoDe({{"PairRecordData", "texto"}}).error(), sinConfianza);
    EXPECT_EQ(emparejar(ListaPlist{}).error(), sinConfianza);
    for (const char *campo :
         {"HostCertificate", "HostPrivateKey", "DeviceCertificate", "HostID", "SystemBUID"}) {
        std::vector<EntradaPlist> quedan;
        for (const EntradaPlist &una : ficha().entradas())
            if (una.clave != campo) quedan.push_back(una);
        EXPECT_EQ(emparejar(DiccionarioPlist(quedan)).error(), sinConfianza) << campo;
        DiccionarioPlist deOtroTipo = ficha();
        deOtroTipo.poner(campo, 7);
        EXPECT_EQ(emparejar(deOtroTipo).error(), sinConfianza) << campo;
    }
}

TEST(MensajeUsbmux, aParserErrorOfAPairRecordIsPassedOn)
{
    const auto leido = Usbmux::emparejamientoDe({{"PairRecordData", DatosPlist{"basura"}}});
    ASSERT_FALSE(leido);
    EXPECT_EQ(leido.error(), ErrorIOS::otro(leerPlist("basura").error().descripcion()));
}
