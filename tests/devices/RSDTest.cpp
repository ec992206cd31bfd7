#include "devices/RSD.h"

#include "tests/devices/BytesXPC.h"
#include "tests/devices/CanalDePrueba.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::Pair;

namespace {

const Plazo sobrado{24h};
const ErrorIOS agotado =
    ErrorIOS::protocolo("El dispositivo no respondió. Desbloquéalo y pulsa «Buscar de nuevo».");

/// A port whose first words are these; it closes behind them.
std::function<Extremo()> queDice(const std::string &bytes)
{
    return [bytes] {
        Extremo nuevo;
        nuevo.salida = bytes;
        return nuevo;
    };
}

std::string trama(int tipo, const std::string &carga)
{
    return be(carga.size(), 3) + static_cast<char>(tipo) + '\0' + be(1, 4) + carga;
}

std::string conServicio(const std::string &nombre)
{
    return trama(4, {}) + trama(0, xpcMensaje(xpcSaludo(xpcMapa({{nombre, xpcServicio("58800")}}))));
}

} // namespace

TEST(RSD, allFiveHundredAndOnePortsAreTriedInAscendingOrder)
{
    ConexionesEnMemoria conexiones;
    EXPECT_EQ(RSD::servicios(conexiones, "fd00::1", sobrado).error(), agotado);
    ASSERT_EQ(conexiones.intentos.size(), 501u);
    for (std::size_t i = 0; i < conexiones.intentos.size(); ++i)
        EXPECT_THAT(conexiones.intentos[i], Pair(58783 + i, 250ms));
    EXPECT_EQ(conexiones.host, "fd00::1");
}

TEST(RSD, theFirstPortThatAnswersEndsTheSearch)
{
    ConexionesEnMemoria conexiones;
    conexiones.puertos[58790] = queDice(conServicio("com.apple.primero"));
    conexiones.puertos[58795] = queDice(conServicio("com.apple.segundo"));
    EXPECT_THAT(*RSD::servicios(conexiones, "fd00::1", sobrado),
                ElementsAre(Pair("com.apple.primero", 58800)));
    EXPECT_EQ(conexiones.intentos.back().first, 58790);
    EXPECT_EQ(conexiones.reglas.abiertos, 0);
}

TEST(RSD, theLastPortIsTriedToo)
{
    ConexionesEnMemoria conexiones;
    conexiones.puertos[59283] = queDice(conServicio("com.apple.a"));
    EXPECT_TRUE(RSD::servicios(conexiones, "fd00::1", sobrado));
    conexiones.puertos.clear();
    conexiones.puertos[59284] = conexiones.puertos[58782] = queDice(conServicio("com.apple.a"));
    EXPECT_EQ(RSD::servicios(conexiones, "fd00::1", sobrado).error(), agotado);
}

TEST(RSD, aPortThatSaysAnythingElseIsPassedOver)
{
    ConexionesEnMemoria conexiones;
    conexiones.puertos[58783] = queDice("HTTP/1.1 400 Bad Request\r\n\r\n");
    conexiones.puertos[58784] = queDice("");
    conexiones.puertos[58785] = queDice(trama(7, std::string(8, '\0')));
    conexiones.puertos[58786] = queDice(conServicio("com.apple.a").substr(0, 60));
    std::string sinLista;
    for (int i = 0; i < 300; ++i)
        sinLista += trama(0, {});
    conexiones.puertos[58787] = queDice(sinLista);
    conexiones.puertos[58788] = [] {
        Extremo cerrado;
        cerrado.cerrado = true;
        return cerrado;
    };
    conexiones.puertos[58790] = queDice(conServicio("com.apple.bueno"));
    EXPECT_THAT(*RSD::servicios(conexiones, "fd00::1", sobrado), ElementsAre(Pair("com.apple.bueno", 58800)));
    EXPECT_EQ(conexiones.reglas.abiertos, 0);
}

TEST(RSD, theTimeOutsAreFourSeconds)
{
    ConexionesEnMemoria conexiones;
    conexiones.puertos[58783] = queDice(conServicio("com.apple.a"));
    ASSERT_TRUE(RSD::servicios(conexiones, "fd00::1", sobrado));
    EXPECT_EQ(conexiones.reglas.recibir, 4s);
    EXPECT_EQ(conexiones.reglas.enviar, 4s);
}

TEST(RSD, aConversationWorksInPiecesOfAnySizeAndEndsAtEveryCut)
{
    ConexionesEnMemoria conexiones;
    const std::string entera = conServicio("com.apple.a");
    conexiones.puertos[58783] = queDice(entera);
    for (std::size_t trozo = 1; trozo <= entera.size(); ++trozo) {
        conexiones.reglas.trozo = trozo;
        EXPECT_TRUE(RSD::servicios(conexiones, "fd00::1", sobrado)) << trozo;
    }
    for (std::size_t corte = 0; corte < entera.size(); ++corte) {
        conexiones.reglas.quedan = corte;
        EXPECT_EQ(RSD::servicios(conexiones, "fd00::1", sobrado).error(), agotado) << corte;
    }
}

TEST(RSD, aPlazoThatEndsStopsTheSearch)
{
    ConexionesEnMemoria conexiones;
    conexiones.alIntentar = [&conexiones](const Plazo &plazo) {
        if (conexiones.intentos.size() == 9) plazo.rendir();
    };
    EXPECT_EQ(RSD::servicios(conexiones, "fd00::1", Plazo{60s}).error(),
              ErrorIOS::socket("el dispositivo no respondió a tiempo"));
    EXPECT_EQ(conexiones.intentos.size(), 10u);
}

TEST(RSD, onePortCannotTakeAllTheTime)
{
    ConexionesEnMemoria conexiones;
    conexiones.alIntentar = [](const Plazo &plazo) { EXPECT_LE(plazo.restante(), 30s); };
    EXPECT_FALSE(RSD::servicios(conexiones, "fd00::1", Plazo{600s}));
}
