#include "devices/ConexionIOS.h"
#include "core/plist/EscribirPlist.h"
#include "core/plist/LeerPlist.h"
#include "tests/core/PlistAMano.h"
#include "tests/devices/CanalGuion.h"

#include <gtest/gtest.h>

using namespace ovanta;
using pruebas::CanalGuion;
using pruebas::Guion;
using pruebas::plazoLargo;
using pruebas::UnaConexion;
using namespace std::string_literals;

namespace {

ConexionIOS sobre(Guion &guion)
{
    UnaConexion conexiones{std::make_unique<CanalGuion>(guion)};
    return ConexionIOS::abrirUnix(conexiones, "/usbmuxd", plazoLargo()).value();
}

std::string marco(const std::string &cuerpo)
{
    return aBigEndian(cuerpo.size(), 4) + cuerpo;
}

std::string marco(const ValorPlist &valor)
{
    return marco(escribirPlistXml(valor).value());
}

template <typename Tipo>
std::string textoDe(const std::expected<Tipo, ErrorIOS> &resultado)
{
    return resultado ? "nada" : resultado.error().errorDescription();
}

std::string alRecibirPlist(const std::string &bytes)
{
    Guion guion{.llegada = bytes};
    return textoDe(sobre(guion).recibirPlist());
}

/// A binary property list of exactly so many bytes: one text under one key.
std::string plistDe(std::size_t bytes)
{
    pruebas::PlistAMano plist{.objetos = {{},
                                          "\x51"
                                          "a",
                                          {}}};
    plist.objetos[0] = "\xD1" + plist.referencias({1, 2});
    plist.objetos[2] = plist.marca(0x4, 1 << 20);
    const auto resto = bytes - plist.bytes().size();
    plist.objetos[2] = plist.marca(0x4, resto) + std::string(resto, 'x');
    return plist.bytes();
}

} // namespace

TEST(ConexionIOS, aFrameOfLengthZeroOr33554432IsRefusedAndOneOf33554431IsRead)
{
    EXPECT_EQ(alRecibirPlist(aBigEndian(0, 4)), "respuesta con longitud inválida");
    EXPECT_EQ(alRecibirPlist(aBigEndian(33'554'432, 4)), "respuesta con longitud inválida");
    EXPECT_EQ(alRecibirPlist(aBigEndian(0xFFFFFFFF, 4)), "respuesta con longitud inválida");
    const auto cuerpo = plistDe(33'554'431);
    ASSERT_EQ(cuerpo.size(), 33'554'431U);
    EXPECT_EQ(alRecibirPlist(marco(cuerpo)), "nada");
}

TEST(ConexionIOS, aFrameCutAtAnyByteTellsThatTheDeviceClosed)
{
    const auto bytes = marco(ValorPlist{DiccionarioPlist{{"a", 1}, {"b", ListaPlist{"x", true}}}});
    EXPECT_EQ(alRecibirPlist(bytes), "nada");
    for (std::size_t i = 0; i < bytes.size(); ++i)
        ASSERT_EQ(alRecibirPlist(bytes.substr(0, i)), "Conexión: el dispositivo cerró la conexión") << i;
}

TEST(ConexionIOS, framesAreReadHoweverTheirBytesArrive)
{
    const DiccionarioPlist mensaje{{"a", 1}, {"b", ListaPlist{"x", true}}};
    for (const std::size_t porVez : {1U, 2U, 3U, 5U, 1000U}) {
        Guion guion{.llegada = marco(mensaje) + marco(DiccionarioPlist{}), .porVez = porVez};
        auto conexion = sobre(guion);
        EXPECT_EQ(conexion.recibirPlist(), mensaje);
        EXPECT_EQ(conexion.recibirPlist(), DiccionarioPlist{});
    }
}

TEST(ConexionIOS, binaryPropertyListsAreReadToo)
{
    Guion guion{.llegada = marco(plistDe(2'000'000))};
    const auto leido = sobre(guion).recibirPlist();
    ASSERT_TRUE(leido);
    EXPECT_TRUE(leido->valor<DatosPlist>("a"));
}

TEST(ConexionIOS, aListThatIsNoDictionaryOfTextKeysIsUnreadable)
{
    EXPECT_EQ(alRecibirPlist(marco(ListaPlist{})), "respuesta ilegible");
    EXPECT_EQ(alRecibirPlist(marco("texto"s)), "Lista de propiedades ilegible: texto fuera de un valor");
    EXPECT_EQ(alRecibirPlist(marco(ValorPlist{"texto"})), "respuesta ilegible");
    pruebas::PlistAMano dic{.objetos = {{}, "\x10\x05"}};
    dic.objetos[0] = "\xD1" + dic.referencias({1, 1});
    EXPECT_EQ(alRecibirPlist(marco(dic.bytes())), "respuesta ilegible");
}

TEST(ConexionIOS, anErrorOfThePropertyListIsPassedOnAsItCame)
{
    const auto cuerpo = "<plist><nada/></plist>"s;
    Guion guion{.llegada = marco(cuerpo)};
    const auto leido = sobre(guion).recibirPlist();
    ASSERT_FALSE(leido);
    EXPECT_EQ(leido.error().caso, ErrorIOS::Caso::otro);
    EXPECT_EQ(leido.error().errorDescription(), leerPlist(cuerpo).error().descripcion());

    const auto enviado = sobre(guion).enviarPlist({{"a", "\x01"}});
    ASSERT_FALSE(enviado);
    EXPECT_EQ(enviado.error().caso, ErrorIOS::Caso::otro);
    EXPECT_EQ(enviado.error().texto, escribirPlistXml("\x01").error().descripcion());
    EXPECT_EQ(guion.enviado, "");
}

TEST(ConexionIOS, aPropertyListIsSentAsXmlBehindItsLength)
{
    for (const std::size_t porVez : {1U, 7U, 100'000U}) {
        Guion guion{.porVez = porVez};
        const DiccionarioPlist mensaje{{"Request", "Goodbye"}};
        ASSERT_TRUE(sobre(guion).enviarPlist(mensaje));
        EXPECT_EQ(guion.enviado, marco(ValorPlist{mensaje}));
    }
}

TEST(ConexionIOS, aRequestBearsTheLabelOfTheProgramWhateverItHadThere)
{
    Guion guion{.llegada = marco(DiccionarioPlist{{"Value", 5}})};
    const auto respuesta = sobre(guion).peticion({{"Request", "GetValue"}, {"Label", "otra"}});
    EXPECT_EQ(respuesta, (DiccionarioPlist{{"Value", 5}}));
    EXPECT_EQ(guion.enviado, marco(DiccionarioPlist{{"Label", "Ovanta"}, {"Request", "GetValue"}}));
}

TEST(ConexionIOS, aReplyWithAnErrorIsRaisedBehindTheNameOfTheRequest)
{
    const auto pedir = [](const DiccionarioPlist &pedido, const ValorPlist &error) {
        Guion guion{.llegada = marco(DiccionarioPlist{{"Error", error}})};
        return sobre(guion).peticion(pedido);
    };
    const auto rechazo = pedir({{"Request", "GetValue"}}, "InvalidHostID");
    ASSERT_FALSE(rechazo);
    EXPECT_EQ(rechazo.error(), ErrorIOS::protocolo("GetValue: InvalidHostID"));
    EXPECT_EQ(textoDe(pedir({{"Request", 7}}, "No")), "7: No");
    EXPECT_EQ(textoDe(pedir({}, "No")), "?: No");
    EXPECT_EQ(pedir({{"Request", "GetValue"}}, 5), (DiccionarioPlist{{"Error", 5}}));
}

TEST(ConexionIOS, aDeviceThatClosesTheSocketDuringARawReadIsToldToTheUser)
{
    Guion guion{.llegada = "abc"};
    EXPECT_EQ(textoDe(sobre(guion).leerCrudo(4)), "Conexión: el dispositivo cerró la conexión");
    for (const auto fallo : {Canal::Fallo::silencio, Canal::Fallo::sistema, Canal::Fallo::vencido}) {
        Guion otro{.llegada = "abc", .alFinal = fallo};
        EXPECT_EQ(textoDe(sobre(otro).leerCrudo(4)), "Conexión: el dispositivo no respondió a tiempo");
    }
}

TEST(ConexionIOS, whatCannotBeSentCountsAsClosedUnlessTheDeadlineIsOver)
{
    for (const auto fallo : {Canal::Fallo::cerrado, Canal::Fallo::silencio, Canal::Fallo::sistema}) {
        Guion guion{.alEnviar = fallo};
        EXPECT_EQ(textoDe(sobre(guion).escribir("x")), "Conexión: el dispositivo cerró la conexión");
        EXPECT_EQ(textoDe(sobre(guion).escribirCrudo("x")), "Conexión: el dispositivo cerró la conexión");
    }
    Guion guion{.alEnviar = Canal::Fallo::vencido};
    EXPECT_EQ(textoDe(sobre(guion).escribir("x")), "Conexión: el dispositivo no respondió a tiempo");
}

TEST(ConexionIOS, nothingIsReadAndNothingSentWhereNothingIsAskedFor)
{
    Guion guion{.alEnviar = Canal::Fallo::cerrado};
    EXPECT_EQ(sobre(guion).leer(0), "");
    EXPECT_TRUE(sobre(guion).escribir(""));
}

TEST(ConexionIOS, theTimeOutsReachTheChannel)
{
    Guion guion;
    sobre(guion).ponerTiempos(std::chrono::seconds{4}, std::chrono::seconds{3});
    EXPECT_EQ(guion.esperaRecibir, std::chrono::seconds{4});
    EXPECT_EQ(guion.esperaEnviar, std::chrono::seconds{3});
}

TEST(ConexionIOS, eachWayOfNotOpeningHasItsWords)
{
    using Fallo = Conexiones::Fallo;
    const std::tuple<Fallo, const char *, const char *> casos[] = {
        {Fallo::sinSocket, "Conexión: socket()", "Conexión: socket()"},
        {Fallo::sinRespuesta, "Conexión: usbmuxd no responde", "Conexión: puerto 62078 cerrado"},
        {Fallo::direccionInvalida, "Conexión: dirección inválida", "Conexión: dirección inválida"},
        {Fallo::vencido, "Conexión: el dispositivo no respondió a tiempo",
         "Conexión: el dispositivo no respondió a tiempo"}};
    for (const auto &[fallo, porUnix, porTcp] : casos) {
        UnaConexion conexiones{fallo};
        EXPECT_EQ(textoDe(ConexionIOS::abrirUnix(conexiones, "/x", plazoLargo())), porUnix);
        EXPECT_EQ(
            textoDe(ConexionIOS::abrirTcp6(conexiones, "::1", 62078, std::chrono::seconds{1}, plazoLargo())),
            porTcp);
    }
}
