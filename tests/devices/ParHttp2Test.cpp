#include "tests/devices/ParHttp2.h"

#include "devices/XPC.h"
#include "tests/devices/BytesXPC.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using testing::ElementsAre;
using testing::Pair;
using testing::UnorderedElementsAre;

namespace {

std::string mensaje()
{
    return xpcMensaje("") + xpcMensaje(xpcSaludo(xpcMapa({{"com.apple.a", xpcServicio("58800")}})));
}

} // namespace

TEST(ParHttp2, anotherImplementationAcceptsEveryFrameThatIsSent)
{
    ParHttp2 par(1000);
    par.respuestas[1] = mensaje();
    ASSERT_THAT(*par.descubrir(), ElementsAre(Pair("com.apple.a", 58800)));
    EXPECT_FALSE(par.cortada);
    EXPECT_EQ(par.faltas, 0);
    EXPECT_THAT(par.tipos, ElementsAre(NGHTTP2_SETTINGS, NGHTTP2_WINDOW_UPDATE, NGHTTP2_HEADERS, NGHTTP2_DATA,
                                       NGHTTP2_DATA, NGHTTP2_HEADERS, NGHTTP2_DATA, NGHTTP2_SETTINGS));
    EXPECT_THAT(par.ajustes, UnorderedElementsAre(Pair(NGHTTP2_SETTINGS_MAX_CONCURRENT_STREAMS, 100),
                                                  Pair(NGHTTP2_SETTINGS_INITIAL_WINDOW_SIZE, 1048576)));
    EXPECT_EQ(par.incremento, 983041);
    EXPECT_EQ(par.acuses, 1);
    EXPECT_THAT(par.datos,
                UnorderedElementsAre(Pair(1, XPC::envoltura(1, true) + XPC::envoltura(0x201, false)),
                                     Pair(3, XPC::envoltura(0x400001, false))));
}

TEST(ParHttp2, itsFramesAreReadHoweverItCutsTheMessage)
{
    const std::string entero = mensaje();
    for (std::size_t trozo = (entero.size() + 149) / 150; trozo <= entero.size(); ++trozo)
        for (const std::int32_t stream : {1, 3}) {
            ParHttp2 par(trozo);
            par.respuestas[stream] = entero;
            const auto servicios = par.descubrir();
            ASSERT_TRUE(servicios) << trozo << servicios.error().texto;
            EXPECT_THAT(*servicios, ElementsAre(Pair("com.apple.a", 58800)));
        }
}

TEST(ParHttp2, aListOfServicesAsLargeAsTheWindowsIsRead)
{
    std::vector<std::pair<std::string, std::string>> servicios;
    for (int i = 0; i < 9500; ++i)
        servicios.emplace_back("com.apple.servicio." + std::to_string(i), xpcServicio(std::to_string(i)));
    ParHttp2 par(16384);
    par.respuestas[1] = xpcMensaje(xpcSaludo(xpcMapa(servicios)));
    ASSERT_GT(par.respuestas[1].size(), 800'000u);
    ASSERT_LT(par.respuestas[1].size(), 1'048'576u);
    const auto hallados = par.descubrir();
    ASSERT_TRUE(hallados) << hallados.error().texto;
    EXPECT_EQ(hallados->size(), 9500u);
}

TEST(ParHttp2, itsGoodbyeEndsTheConversation)
{
    ParHttp2 par(100);
    par.despedirse = true;
    EXPECT_EQ(par.descubrir().error(), ErrorIOS::protocolo("el dispositivo cerró el descubrimiento"));
}
