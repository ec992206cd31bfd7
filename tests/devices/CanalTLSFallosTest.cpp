#include "devices/CanalTLS.h"
#include "platform/ConexionesPosix.h"
#include "tests/HogarTemporal.h"
#include "tests/devices/EscuchaDePrueba.h"
#include "tests/devices/MesaTLS.h"

#include <gtest/gtest.h>
#include <openssl/err.h>
#include <openssl/sslerr.h>
#include <thread>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::chrono_literals;
using namespace std::string_literals;

TEST(CanalTLS, aCertificateOfAMegabyteIsRefusedAndTheConnectionStaysPlain)
{
    const ParDePrueba enorme{{.relleno = 1'000'000}};
    MesaTLS mesa{{.par = &enorme}};
    const auto hecho = mesa.activar(enorme.pem());
    ASSERT_FALSE(hecho);
    EXPECT_EQ(hecho.error(), ErrorIOS::tls("negociación", SSL_R_EXCESSIVE_MESSAGE_SIZE));
    EXPECT_FALSE(mesa.conexion->cifrada());
}

TEST(CanalTLS, aDeviceThatClosesAtAnyStepOfTheHandshakeEndsTheNegotiation)
{
    for (const int version : versiones) {
        // What an RSA key says is always equally long. The tickets of 1.3 come behind the handshake.
        DispositivoTLS::Opciones opciones{
            .par = &parDe(2048), .minima = version, .maxima = version, .admite = &parDe(0)};
        MesaTLS entera{opciones};
        ASSERT_TRUE(entera.activar(parDe(2048).pem()));
        for (std::size_t corte = 0; corte < entera.parte.entregado; corte += corte < 12 ? 1 : 37) {
            opciones.cortarTras = corte;
            MesaTLS mesa{opciones};
            const auto hecho = mesa.activar(parDe(2048).pem());
            ASSERT_FALSE(hecho) << version << ' ' << corte;
            EXPECT_EQ(hecho.error().caso, ErrorIOS::Caso::tls);
            EXPECT_EQ(hecho.error().texto, "negociación");
            EXPECT_TRUE(hecho.error().estado == -9805 || hecho.error().estado == -9806)
                << hecho.error().estado;
            EXPECT_FALSE(mesa.conexion->cifrada());
        }
    }
}

TEST(CanalTLS, aConnectionThatIsResetDuringTheHandshakeCountsAsAborted)
{
    MesaTLS mesa{{.par = &parDe(0), .cortarTras = 30, .alCortar = Canal::Fallo::sistema}};
    EXPECT_EQ(mesa.activar(parDe(0).pem()).error(), ErrorIOS::tls("negociación", -9806));
}

TEST(CanalTLS, aHandshakeByteByByteSucceeds)
{
    MesaTLS mesa{{.par = &parDe(0), .porVez = 1}};
    EXPECT_TRUE(mesa.activar(parDe(0).pem()));
    mesa.parte.respuesta = "hola";
    EXPECT_TRUE(mesa.conexion->escribir("x"));
    EXPECT_EQ(mesa.conexion->leer(4), "hola");
}

TEST(CanalTLS, aSilentHandshakeIsWaitedForUntilTheDeadline)
{
    Guion guion{.alFinal = Canal::Fallo::vencido};
    CanalGuion callado{guion};
    const auto hecho = CanalTLS::negociar(callado, identidadDe(parDe(0)), "x");
    ASSERT_FALSE(hecho);
    EXPECT_EQ(hecho.error(), ErrorIOS::socket("el dispositivo no respondió a tiempo"));
}

TEST(CanalTLS, rubbishInsteadOfAHandshakeEndsIt)
{
    for (const std::string &basura :
         {"HTTP/1.1 400 Bad Request\r\n\r\n"s, std::string(100, '\0'), std::string(20'000, '\xFF'),
          "\x16\x03\x01\xFF\xFF"s + std::string(70'000, 'x')}) {
        Guion guion{.llegada = basura};
        CanalGuion canal{guion};
        const auto hecho = CanalTLS::negociar(canal, identidadDe(parDe(0)), "x");
        ASSERT_FALSE(hecho);
        EXPECT_EQ(hecho.error().texto, "negociación");
        EXPECT_GT(hecho.error().estado, 0);
    }
}

TEST(CanalTLS, aReadThatGetsNothingInTimeEndsWithItsStatus)
{
    MesaTLS mesa{{.par = &parDe(0)}};
    ASSERT_TRUE(mesa.activar(parDe(0).pem()));
    EXPECT_EQ(mesa.conexion->leer(1).error(), ErrorIOS::tls("lectura", -9803));
    mesa.parte.respuesta = "ho";
    ASSERT_TRUE(mesa.conexion->escribir("x"));
    EXPECT_EQ(mesa.conexion->leer(4).error(), ErrorIOS::tls("lectura", -9803));
}

TEST(CanalTLS, aReadUnderAnEndedDeadlineTellsSo)
{
    MesaTLS mesa{{.par = &parDe(0), .silencios = 0}};
    ASSERT_TRUE(mesa.activar(parDe(0).pem()));
    EXPECT_EQ(mesa.conexion->leer(1).error(), ErrorIOS::socket("el dispositivo no respondió a tiempo"));
}

TEST(CanalTLS, theEndOfTheChannelIsAClosedOneWithOrWithoutAGoodbye)
{
    MesaTLS amable{{.par = &parDe(0), .maxima = TLS1_2_VERSION, .despedirse = true}};
    ASSERT_TRUE(amable.activar(parDe(0).pem()));
    EXPECT_EQ(amable.conexion->leer(1).error(), ErrorIOS::tls("lectura", -9805));

    // What an RSA key says in 1.2 is always equally long.
    MesaTLS medida{{.par = &parDe(2048), .maxima = TLS1_2_VERSION}};
    ASSERT_TRUE(medida.activar(parDe(2048).pem()));
    MesaTLS brusca{{.par = &parDe(2048), .maxima = TLS1_2_VERSION, .cortarTras = medida.parte.entregado}};
    ASSERT_TRUE(brusca.activar(parDe(2048).pem()));
    EXPECT_EQ(brusca.conexion->leer(1).error(), ErrorIOS::tls("lectura", -9805));
}

TEST(CanalTLS, aRejectedClientShowsAtTheHandshakeOrIn13AtTheFirstRead)
{
    MesaTLS vieja{{.par = &parDe(0), .maxima = TLS1_2_VERSION, .admite = &parDe(2048)}};
    const auto hecho = vieja.activar(parDe(0).pem());
    ASSERT_FALSE(hecho);
    EXPECT_EQ(hecho.error().texto, "negociación");
    EXPECT_GT(hecho.error().estado, 1000);

    MesaTLS nueva{{.par = &parDe(0), .minima = TLS1_3_VERSION, .admite = &parDe(2048)}};
    ASSERT_TRUE(nueva.activar(parDe(0).pem()));
    const auto leido = nueva.conexion->leer(1);
    ASSERT_FALSE(leido);
    EXPECT_EQ(leido.error().texto, "lectura");
    EXPECT_GT(leido.error().estado, 1000);
}

TEST(CanalTLS, aWriteToAClosedChannelEndsWithItsStatus)
{
    MesaTLS medida{{.par = &parDe(2048), .maxima = TLS1_2_VERSION}};
    ASSERT_TRUE(medida.activar(parDe(2048).pem()));
    MesaTLS mesa{{.par = &parDe(2048), .maxima = TLS1_2_VERSION, .cortarTras = medida.parte.entregado}};
    ASSERT_TRUE(mesa.activar(parDe(2048).pem()));
    EXPECT_EQ(mesa.conexion->escribir("x").error(), ErrorIOS::tls("escritura", -9806));
}

TEST(CanalTLS, frameAfterFrameGoesThroughTheCipher)
{
    MesaTLS mesa{{.par = &parDe(0)}};
    ASSERT_TRUE(mesa.activar(parDe(0).pem()));
    const std::string largo(300'000, 'z');
    ASSERT_TRUE(mesa.conexion->enviarPlist({{"Request", largo}}));
    EXPECT_GT(mesa.parte.aplicacion.size(), largo.size());
    mesa.parte.respuesta = mesa.parte.aplicacion;
    ASSERT_TRUE(mesa.conexion->enviarPlist({}));
    EXPECT_EQ(mesa.conexion->recibirPlist(), (DiccionarioPlist{{"Request", largo}}));
}

TEST(CanalTLS, theEndOfAConnectionAndOfOneThatIsReplacedSaysGoodbye)
{
    MesaTLS mesa{{.par = &parDe(0)}}, otra{{.par = &parDe(0)}};
    ASSERT_TRUE(mesa.activar(parDe(0).pem()));
    ASSERT_TRUE(otra.activar(parDe(0).pem()));
    *mesa.conexion = std::move(*otra.conexion);
    EXPECT_TRUE(mesa.parte.despedido);
    EXPECT_FALSE(otra.parte.despedido);
    EXPECT_TRUE(mesa.conexion->escribir("x"));
    EXPECT_EQ(otra.parte.aplicacion, "x");
    mesa.conexion.reset();
    EXPECT_TRUE(otra.parte.despedido);
}

TEST(CanalTLS, leavesNoErrorBehindInTheQueueOfOpenSsl)
{
    ERR_clear_error();
    MesaTLS mesa{{.par = &parDe(0)}};
    EXPECT_FALSE(mesa.activar(parDe(2048).pem()));
    EXPECT_FALSE(IdentidadTemporal::crear("", ""));
    EXPECT_EQ(ERR_peek_error(), 0U);
}

TEST(CanalTLSPorSocket, aDeviceThatSendsItsHandshakeInDripsIsGivenUpAtTheDeadline)
{
    const HogarTemporal casa;
    EscuchaDePrueba escucha{casa.en("zocalo")};
    ConexionesPosix conexiones;
    auto conexion = ConexionIOS::abrirUnix(conexiones, casa.en("zocalo"), Plazo{300ms}).value();
    const std::jthread goteo{[&escucha](const std::stop_token &basta) {
        const auto otro = escucha.aceptar();
        escucha.escribir(otro, "\x16\x03\x03\x40"s);
        while (!basta.stop_requested()) {
            escucha.escribir(otro, "\0"s);
            std::this_thread::sleep_for(10ms);
        }
    }};
    const auto hecho = conexion.activarTLS(identidadDe(parDe(0)), parDe(0).pem());
    ASSERT_FALSE(hecho);
    EXPECT_EQ(hecho.error(), ErrorIOS::socket("el dispositivo no respondió a tiempo"));
}

TEST(CanalTLSPorSocket, aConversationThroughARealSocketSurvivesTheDeviceThatGoesAway)
{
    const HogarTemporal casa;
    EscuchaDePrueba escucha{casa.en("zocalo")};
    ConexionesPosix conexiones;
    auto conexion = ConexionIOS::abrirUnix(conexiones, casa.en("zocalo"), Plazo{1min}).value();
    DispositivoTLS::Parte parte;
    parte.respuesta = "hola";
    std::jthread dispositivo{[&escucha, &parte] {
        const auto otro = escucha.aceptar();
        DispositivoTLS tls{{.par = &parDe(2048)}, parte};
        while (parte.aplicacion.empty() && tls.enviar(escucha.leerAlgo(otro))) {
            char lugar[4096];
            while (const auto cuantos = tls.recibir(lugar))
                escucha.escribir(otro, {lugar, *cuantos});
        }
        escucha.cerrar(otro);
    }};
    ASSERT_TRUE(conexion.activarTLS(identidadDe(parDe(0)), parDe(2048).pem()));
    ASSERT_TRUE(conexion.escribir("buenas"));
    EXPECT_EQ(conexion.leer(4), "hola");
    dispositivo.join();
    EXPECT_EQ(parte.aplicacion, "buenas");
    EXPECT_EQ(conexion.leer(1).error(), ErrorIOS::tls("lectura", -9805));
    EXPECT_EQ(conexion.escribir("x").error().texto, "escritura");
}
