#include "devices/DescubrimientoRSD.h"

#include "tests/devices/BytesXPC.h"
#include "tests/devices/TuboDePrueba.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

std::string trama(int tipo, int flags, std::uint32_t stream, const std::string &carga)
{
    return be(carga.size(), 3) + static_cast<char>(tipo) + static_cast<char>(flags) + be(stream, 4) + carga;
}

std::string datos(std::uint32_t stream, const std::string &carga)
{
    return trama(0, 0, stream, carga);
}

/// A message that ends a discovery.
std::string mensajeConServicio(const std::string &nombre = "com.apple.a")
{
    return xpcMensaje(xpcSaludo(xpcMapa({{nombre, xpcServicio("58800")}})));
}

std::expected<ServiciosRSD, ErrorIOS> descubrir(const std::string &entrada)
{
    TuboDePrueba tubo;
    tubo.entrada = entrada;
    return tubo.descubrir();
}

const ErrorIOS cerrado = ErrorIOS::socket("el dispositivo cerró la conexión");
const ErrorIOS sinLista = ErrorIOS::protocolo("descubrimiento sin lista de servicios");

} // namespace

TEST(DescubrimientoRSD, everyFrameThatTheClientSendsIsTheseBytes)
{
    const std::string vacia = "\x92\x0B\xB0\x29"s;
    const std::string nada(16, '\0');
    EXPECT_THAT(DescubrimientoRSD::saludo(),
                ElementsAre("PRI * HTTP/2.0\r\n\r\nSM\r\n\r\n"s,
                            "\0\0\x0C\x04\0\0\0\0\0"
                            "\0\x03\0\0\0\x64"
                            "\0\x04\0\x10\0\0"s,
                            "\0\0\x04\x08\0\0\0\0\0"
                            "\0\x0F\0\x01"s,
                            "\0\0\0\x01\x04\0\0\0\x01"s,
                            "\0\0\x2C\0\0\0\0\0\x01"s + vacia +
                                "\x01\0\0\0"
                                "\x14\0\0\0\0\0\0\0"
                                "\0\0\0\0\0\0\0\0"
                                "\x42\x37\x13\x42"
                                "\x05\0\0\0"
                                "\0\xF0\0\0"
                                "\x04\0\0\0"
                                "\0\0\0\0"s,
                            "\0\0\x18\0\0\0\0\0\x01"s + vacia + "\x01\x02\0\0"s + nada,
                            "\0\0\0\x01\x04\0\0\0\x03"s,
                            "\0\0\x18\0\0\0\0\0\x03"s + vacia + "\x01\0\x40\0"s + nada));
}

TEST(DescubrimientoRSD, theClientSpeaksFirstAndWritesEachFrameByItself)
{
    TuboDePrueba tubo;
    EXPECT_EQ(tubo.descubrir().error(), cerrado);
    EXPECT_EQ(tubo.escritos, DescubrimientoRSD::saludo());
}

TEST(DescubrimientoRSD, halfAWrapperWaitsForTheNextFrameOnItsStream)
{
    const std::string mensaje = mensajeConServicio();
    for (std::size_t corte = 0; corte <= mensaje.size(); ++corte)
        EXPECT_THAT(*descubrir(datos(1, mensaje.substr(0, corte)) + trama(6, 0, 0, std::string(8, 'p')) +
                               datos(1, mensaje.substr(corte))),
                    ElementsAre(Pair("com.apple.a", 58800)))
            << corte;
}

TEST(DescubrimientoRSD, streamsAreBufferedApartAndEitherEndsTheLoop)
{
    const std::string uno = mensajeConServicio("com.apple.uno");
    const std::string tres = mensajeConServicio("com.apple.tres");
    const std::string intercaladas = datos(1, uno.substr(0, 50)) + datos(3, tres.substr(0, 30));
    EXPECT_THAT(*descubrir(intercaladas + datos(1, uno.substr(50)) + datos(3, tres.substr(30))),
                ElementsAre(Pair("com.apple.uno", 58800)));
    EXPECT_THAT(*descubrir(intercaladas + datos(3, tres.substr(30)) + datos(1, uno.substr(50))),
                ElementsAre(Pair("com.apple.tres", 58800)));
    EXPECT_EQ(descubrir(datos(1, uno.substr(0, 50)) + datos(3, uno.substr(50))).error(), cerrado);
    EXPECT_EQ(descubrir(datos(1, uno.substr(0, 50)) + datos(0x80000001, uno.substr(50))).error(), cerrado);
}

TEST(DescubrimientoRSD, aSettingsFrameIsAnsweredUnlessItIsAnAnswer)
{
    TuboDePrueba tubo;
    tubo.entrada = trama(4, 0, 0, std::string(6, '\0')) + trama(4, 1, 0, {}) + trama(4, 0xFE, 9, {}) +
                   trama(4, 0xFF, 0, {}) + datos(1, mensajeConServicio());
    ASSERT_TRUE(tubo.descubrir());
    const std::string ack = "\0\0\0\x04\x01\0\0\0\0"s;
    const auto saludos = DescubrimientoRSD::saludo().size();
    ASSERT_EQ(tubo.escritos.size(), saludos + 2);
    EXPECT_EQ(tubo.escritos[saludos], ack);
    EXPECT_EQ(tubo.escritos[saludos + 1], ack);
}

TEST(DescubrimientoRSD, aWrapperWithAnEmptyBodyIsSkipped)
{
    EXPECT_TRUE(descubrir(datos(1, xpcMensaje("") + mensajeConServicio())));
    const auto conCuerpo = [](std::size_t largo) {
        return le(0x29B00B92, 4) + le(1, 4) + le(largo, 8) + le(0, 8) + std::string(largo, '\xF0');
    };
    for (const std::size_t largo : {1u, 7u, 8u, 9u, 12u, 100u})
        EXPECT_TRUE(descubrir(datos(1, conCuerpo(largo) + mensajeConServicio()))) << largo;
}

TEST(DescubrimientoRSD, messagesWithoutServicesAreDroppedAndReadingGoesOn)
{
    for (const std::string &otro :
         {xpcMapa({}), xpcMapa({{"Services", xpcTexto("no")}}), xpcMapa({{"Services", xpcLista({})}}),
          xpcLista({}), xpcTexto("Services"), xpcMapa({{"x", le(0x6000, 4)}}), le(0x1000, 4)})
        EXPECT_THAT(*descubrir(datos(1, xpcMensaje(otro) + mensajeConServicio())),
                    ElementsAre(Pair("com.apple.a", 58800)));
    EXPECT_THAT(*descubrir(datos(1, xpcMensaje(xpcMapa({{"Services", xpcMapa({})}})))), IsEmpty());
}

TEST(DescubrimientoRSD, magicFlagsAndIdOfAWrapperAreNotLookedAt)
{
    std::string mensaje = mensajeConServicio();
    for (const std::size_t i : {0u, 3u, 4u, 7u, 16u, 23u, 24u, 31u})
        mensaje[i] = static_cast<char>(~mensaje[i]);
    EXPECT_TRUE(descubrir(datos(1, mensaje)));
}

TEST(DescubrimientoRSD, goodbyeEndsTheConversation)
{
    EXPECT_EQ(descubrir(trama(7, 0, 0, std::string(8, '\0')) + datos(1, mensajeConServicio())).error(),
              ErrorIOS::protocolo("el dispositivo cerró el descubrimiento"));
}

TEST(DescubrimientoRSD, framesOfAnyOtherTypeAreSkipped)
{
    std::string entrada;
    for (const int tipo : {1, 2, 3, 5, 6, 8, 9, 10, 255})
        entrada += trama(tipo, 0xFF, 1, mensajeConServicio("com.apple.no"));
    EXPECT_THAT(*descubrir(entrada + datos(1, mensajeConServicio())),
                ElementsAre(Pair("com.apple.a", 58800)));
}

TEST(DescubrimientoRSD, afterTwoHundredFramesItIsGivenUp)
{
    const auto conTramas = [](int antes) {
        std::string entrada;
        for (int i = 0; i < antes; ++i)
            entrada += datos(1, {});
        return entrada + datos(1, mensajeConServicio());
    };
    EXPECT_TRUE(descubrir(conTramas(199)));
    EXPECT_EQ(descubrir(conTramas(200)).error(), sinLista);
    TuboDePrueba tubo;
    tubo.entrada = conTramas(1000);
    EXPECT_EQ(tubo.descubrir().error(), sinLista);
    EXPECT_EQ(tubo.leidos, 200u * 9);
}

TEST(DescubrimientoRSD, onlyTextsWithAPortOfSixteenBitsCount)
{
    const auto con = [](const std::string &puerto) { return xpcMapa({{"Port", puerto}}); };
    const std::string servicios = xpcMapa({{"bien", con(xpcTexto("65535"))},
                                           {"cero", con(xpcTexto("0"))},
                                           {"mas", con(xpcTexto("+80"))},
                                           {"ceros", con(xpcTexto("000080"))},
                                           {"alto", con(xpcTexto("70000"))},
                                           {"límite", con(xpcTexto("65536"))},
                                           {"enorme", con(xpcTexto("99999999999999999999"))},
                                           {"número", con(le(0x4000, 4) + le(80, 8))},
                                           {"vacío", con(xpcTexto(""))},
                                           {"signo", con(xpcTexto("+"))},
                                           {"dos signos", con(xpcTexto("++1"))},
                                           {"menos", con(xpcTexto("-1"))},
                                           {"hexa", con(xpcTexto("0x50"))},
                                           {"espacio", con(xpcTexto(" 80"))},
                                           {"detrás", con(xpcTexto("80 "))},
                                           {"sin puerto", xpcMapa({})},
                                           {"texto", xpcTexto("80")}});
    EXPECT_THAT(*descubrir(datos(3, xpcMensaje(xpcSaludo(servicios)))),
                ElementsAre(Pair("bien", 65535), Pair("cero", 0), Pair("ceros", 80), Pair("mas", 80)));
}

TEST(DescubrimientoRSD, aReplyCutAtAnyByteEndsAsClosed)
{
    const std::string entera = trama(4, 0, 0, std::string(6, '\0')) + datos(1, mensajeConServicio());
    ASSERT_TRUE(descubrir(entera));
    for (std::size_t largo = 0; largo < entera.size(); ++largo)
        EXPECT_EQ(descubrir(entera.substr(0, largo)).error(), cerrado) << largo;
}

TEST(DescubrimientoRSD, anImpossibleBodyLengthOnlyWaits)
{
    for (const std::uint64_t largo :
         {0xFFFFFFFFFFFFFFFFull, 0xFFFFFFFFFFFFFFE8ull, 0x8000000000000000ull, 0x100000000ull}) {
        const std::string cabecera = le(0x29B00B92, 4) + le(1, 4) + le(largo, 8) + le(0, 8);
        std::string entrada;
        for (int i = 0; i < 200; ++i)
            entrada += datos(1, cabecera);
        EXPECT_EQ(descubrir(entrada).error(), sinLista) << largo;
        EXPECT_TRUE(descubrir(datos(1, cabecera) + datos(3, mensajeConServicio()))) << largo;
    }
}

TEST(DescubrimientoRSD, dataBeyondAllWindowsIsRefused)
{
    const std::string mega(1 << 20, '\0');
    std::string relleno = le(0, 8) + le(std::uint64_t{1} << 40, 8) + le(0, 8);
    relleno.resize(mega.size(), '\0');
    std::string entrada = datos(1, relleno);
    for (int i = 0; i < 7; ++i)
        entrada += datos(1, mega);
    EXPECT_EQ(descubrir(entrada).error(), cerrado);
    EXPECT_EQ(descubrir(entrada + datos(1, "x")).error(),
              ErrorIOS::protocolo("respuesta con longitud inválida"));
    EXPECT_EQ(descubrir(entrada + datos(3, mensajeConServicio())).error(),
              ErrorIOS::protocolo("respuesta con longitud inválida"));
}

TEST(DescubrimientoRSD, thousandsOfMessagesInOneFrameAreReadOneByOne)
{
    std::string mensajes;
    for (int i = 0; i < 20'000; ++i)
        mensajes += xpcMensaje("");
    EXPECT_TRUE(descubrir(datos(1, mensajes + mensajeConServicio())));
}
