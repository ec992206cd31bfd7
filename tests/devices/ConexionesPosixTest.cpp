#include "platform/ConexionesPosix.h"
#include "tests/HogarTemporal.h"
#include "tests/devices/EscuchaDePrueba.h"

#include <gtest/gtest.h>
#include <netinet/in.h>
#include <thread>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::chrono_literals;
using Fallo = Canal::Fallo;

namespace {

std::string recibirTodo(Canal &canal)
{
    std::string todo;
    char lugar[1000];
    while (const auto cuantos = canal.recibir(lugar))
        todo.append(lugar, *cuantos);
    return todo;
}

} // namespace

class ConexionesPosixTest : public testing::Test
{
protected:
    HogarTemporal casa;
    std::string ruta = casa.en("zocalo");
    ConexionesPosix conexiones{ruta};
};

TEST_F(ConexionesPosixTest, bytesGoBothWaysThroughAUnixSocket)
{
    EscuchaDePrueba escucha{ruta};
    const auto canal = conexiones.abrirUnix(ruta, Plazo{1min});
    ASSERT_TRUE(canal);
    const auto otro = escucha.aceptar();
    EXPECT_EQ((*canal)->enviar("hola"), 4U);
    EXPECT_EQ(escucha.leer(otro, 4), "hola");
    escucha.escribir(otro, "buenas");
    escucha.cerrar(otro);
    EXPECT_EQ(recibirTodo(**canal), "buenas");
    char lugar[1];
    EXPECT_EQ((*canal)->recibir(lugar), std::unexpected(Fallo::cerrado));
}

TEST_F(ConexionesPosixTest, aPathLongerThan103BytesIsCutAndNotRefused)
{
    auto larga = ruta;
    larga.resize(103, 'x');
    const EscuchaDePrueba escucha{larga};
    EXPECT_TRUE(conexiones.abrirUnix(larga, Plazo{1min}));
    EXPECT_TRUE(conexiones.abrirUnix(larga + "y", Plazo{1min}));
    EXPECT_TRUE(conexiones.abrirUnix(larga + std::string(10'000, 'z'), Plazo{1min}));
    EXPECT_FALSE(conexiones.abrirUnix(larga.substr(0, 102), Plazo{1min}));
}

TEST_F(ConexionesPosixTest, whereNobodyListensThereIsNoAnswer)
{
    const Plazo plazo{1min};
    EXPECT_EQ(conexiones.abrirUnix(ruta, plazo).error(), Conexiones::Fallo::sinRespuesta);
    EXPECT_EQ(conexiones.abrirUnix("", plazo).error(), Conexiones::Fallo::sinRespuesta);
    {
        const EscuchaDePrueba escucha{ruta};
    }
    EXPECT_EQ(conexiones.abrirUnix(ruta, plazo).error(), Conexiones::Fallo::sinRespuesta);
}

TEST_F(ConexionesPosixTest, aTextThatIsNoIpv6AddressIsRefused)
{
    for (const char *host : {"", "127.0.0.1", "localhost", ":::1", "::1 ", "fe80::1%lo", "[::1]"})
        EXPECT_EQ(conexiones.abrirTcp6(host, 80, 1s, Plazo{1min}).error(),
                  Conexiones::Fallo::direccionInvalida)
            << host;
}

TEST_F(ConexionesPosixTest, aTcpPortIsReachedWhereSomebodyListensAndClosedWhereNobodyDoes)
{
    std::uint16_t puerto = 0;
    {
        EscuchaDePrueba escucha;
        puerto = escucha.puerto();
        const auto canal = conexiones.abrirTcp6("::1", puerto, 5s, Plazo{1min});
        ASSERT_TRUE(canal);
        const auto otro = escucha.aceptar();
        EXPECT_EQ((*canal)->enviar("hola"), 4U);
        EXPECT_EQ(escucha.leer(otro, 4), "hola");
    }
    EXPECT_EQ(conexiones.abrirTcp6("::1", puerto, 5s, Plazo{1min}).error(), Conexiones::Fallo::sinRespuesta);
}

TEST_F(ConexionesPosixTest, silenceEndsTheCallAtItsTimeOut)
{
    EscuchaDePrueba escucha{ruta};
    const auto canal = conexiones.abrirUnix(ruta, Plazo{1min}).value();
    canal->ponerTiempos(30ms, 30ms);
    char lugar[1];
    EXPECT_EQ(canal->recibir(lugar), std::unexpected(Fallo::silencio));
    std::expected<std::size_t, Fallo> enviados = 0;
    while (enviados)
        enviados = canal->enviar(std::string(100'000, 'x'));
    EXPECT_EQ(enviados.error(), Fallo::silencio);
}

TEST_F(ConexionesPosixTest, theDeadlineEndsACallHoweverLongItsTimeOut)
{
    EscuchaDePrueba escucha{ruta};
    const auto canal = conexiones.abrirUnix(ruta, Plazo{50ms}).value();
    char lugar[1];
    EXPECT_EQ(canal->recibir(lugar), std::unexpected(Fallo::vencido));
    EXPECT_EQ(canal->enviar("x"), std::unexpected(Fallo::vencido));
    EXPECT_EQ(conexiones.abrirUnix(ruta, Plazo{0ms}).error(), Conexiones::Fallo::vencido);
}

TEST_F(ConexionesPosixTest, aBlockedCallIsGivenUpFromAnotherThread)
{
    EscuchaDePrueba escucha{ruta};
    const Plazo plazo{10min};
    const auto canal = conexiones.abrirUnix(ruta, plazo.acotado(9min)).value();
    canal->ponerTiempos(9min, 9min);
    const std::jthread otro{[plazo] {
        std::this_thread::sleep_for(20ms);
        plazo.rendir();
    }};
    char lugar[1];
    EXPECT_EQ(canal->recibir(lugar), std::unexpected(Fallo::vencido));
}

TEST_F(ConexionesPosixTest, aDripOfBytesDoesNotOutliveTheDeadline)
{
    EscuchaDePrueba escucha{ruta};
    const auto canal = conexiones.abrirUnix(ruta, Plazo{200ms}).value();
    const std::jthread goteo{[&escucha](const std::stop_token &basta) {
        const auto otro = escucha.aceptar();
        while (!basta.stop_requested()) {
            escucha.escribir(otro, "x");
            std::this_thread::sleep_for(10ms);
        }
    }};
    std::expected<std::size_t, Fallo> recibidos = 0;
    char lugar[1];
    while (recibidos)
        recibidos = canal->recibir(lugar);
    EXPECT_EQ(recibidos.error(), Fallo::vencido);
}

TEST_F(ConexionesPosixTest, writingToAClosedSocketRaisesNoSignal)
{
    EscuchaDePrueba escucha{ruta};
    const auto canal = conexiones.abrirUnix(ruta, Plazo{1min}).value();
    escucha.cerrar(escucha.aceptar());
    std::expected<std::size_t, Fallo> enviados = 0;
    for (int i = 0; i < 3 && enviados; ++i)
        enviados = canal->enviar("x");
    EXPECT_EQ(enviados, std::unexpected(Fallo::cerrado));
}

TEST_F(ConexionesPosixTest, noBytesAreMovedAtOnce)
{
    EscuchaDePrueba escucha{ruta};
    const auto canal = conexiones.abrirUnix(ruta, Plazo{1min}).value();
    EXPECT_EQ(canal->enviar(""), 0U);
    EXPECT_EQ(canal->recibir({}), 0U);
}

TEST_F(ConexionesPosixTest, tellsWhereUsbmuxdListens)
{
    EXPECT_EQ(conexiones.rutaUsbmuxd(), ruta);
    EXPECT_EQ(ConexionesPosix{}.rutaUsbmuxd(), "/var/run/usbmuxd");
}

TEST(Plazo, isOverAfterItsTimeOrOnceGivenUp)
{
    const Plazo plazo{10min};
    const Plazo corto = plazo.acotado(0ms), largo = plazo.acotado(1h);
    EXPECT_FALSE(plazo.vencido());
    EXPECT_TRUE(corto.vencido());
    EXPECT_EQ(corto.restante(), 0ms);
    EXPECT_LE(largo.restante(), 10min);
    corto.rendir();
    EXPECT_TRUE(plazo.vencido());
    EXPECT_TRUE(largo.rendido());
    EXPECT_FALSE(Plazo{10min}.vencido());
}
