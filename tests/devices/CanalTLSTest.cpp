#include "devices/CanalTLS.h"
#include "tests/devices/MesaTLS.h"

#include <gtest/gtest.h>
#include <openssl/sslerr.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::string_literals;

namespace {

// The types of TLS records (RFC 5246, 6.2.1).
constexpr int alerta = 21, saludo = 22;
constexpr const char *certificadoAjeno = "el certificado del dispositivo no coincide con el emparejamiento";

/// The types of the TLS records that make up `bytes`.
std::vector<int> tiposDeRegistro(const std::string &bytes)
{
    std::vector<int> tipos;
    for (std::size_t i = 0; i + 5 <= bytes.size();) {
        const auto byte = [&bytes, i](std::size_t j) { return static_cast<unsigned char>(bytes[i + j]); };
        tipos.push_back(byte(0));
        i += 5U + byte(3) * 256U + byte(4);
    }
    return tipos;
}

} // namespace

TEST(CanalTLS, talksToDevicesOfEachVersionWithKeysOfEachKind)
{
    for (const int bits : {1024, 2048, 4096, 0}) {
        for (const int version : versiones) {
            MesaTLS mesa{{.par = &parDe(bits), .minima = version, .maxima = version, .admite = &parDe(0)}};
            const auto hecho = mesa.activar(parDe(bits).pem());
            ASSERT_TRUE(hecho) << bits << ' ' << version << ' ' << hecho.error().errorDescription();
            EXPECT_TRUE(mesa.conexion->cifrada());
            mesa.parte.respuesta = "hola";
            ASSERT_TRUE(mesa.conexion->escribir("buenas"));
            EXPECT_EQ(mesa.conexion->leer(4), "hola") << bits << ' ' << version;
            EXPECT_EQ(mesa.parte.aplicacion, "buenas");
            EXPECT_EQ(mesa.parte.version, version);
            EXPECT_TRUE(mesa.parte.clienteConocido);
        }
    }
}

TEST(CanalTLS, presentsClientKeysOfEachKind)
{
    for (const int bits : {1024, 2048, 4096, 0}) {
        for (const int version : versiones) {
            MesaTLS mesa{{.par = &parDe(0), .minima = version, .maxima = version, .admite = &parDe(bits)}};
            const auto hecho = mesa.conexion->activarTLS(identidadDe(parDe(bits)), parDe(0).pem());
            ASSERT_TRUE(hecho) << bits << ' ' << version << ' ' << hecho.error().errorDescription();
            ASSERT_TRUE(mesa.conexion->escribir("x"));
            EXPECT_TRUE(mesa.parte.clienteConocido);
        }
    }
}

TEST(CanalTLS, oneIdentityServesTwoChannels)
{
    const auto identidad = identidadDe(parDe(2048));
    MesaTLS uno{{.par = &parDe(0), .admite = &parDe(2048)}}, dos{{.par = &parDe(0), .admite = &parDe(2048)}};
    EXPECT_TRUE(uno.conexion->activarTLS(identidad, parDe(0).pem()));
    EXPECT_TRUE(dos.conexion->activarTLS(identidad, parDe(0).pem()));
    EXPECT_TRUE(uno.conexion->escribir("x"));
    EXPECT_TRUE(dos.conexion->escribir("y"));
    EXPECT_EQ(uno.parte.aplicacion + dos.parte.aplicacion, "xy");
}

TEST(CanalTLS, aCertificateThatDiffersByOneByteFailsWithStatusMinusOneAndNoDataMoves)
{
    const auto der = parDe(2048).der();
    for (const int version : versiones) {
        for (const std::size_t lugar : {std::size_t{0}, der.size() / 2, der.size() - 1}) {
            auto otro = der;
            otro[lugar] = static_cast<char>(otro[lugar] ^ 1);
            MesaTLS mesa{{.par = &parDe(2048), .minima = version, .maxima = version, .admite = &parDe(0)}};
            const auto hecho = mesa.activar(enPem(otro));
            ASSERT_FALSE(hecho);
            EXPECT_EQ(hecho.error(), ErrorIOS::tls(certificadoAjeno, -1));
            EXPECT_FALSE(mesa.conexion->cifrada());
            EXPECT_EQ(mesa.parte.aplicacion, "");
            EXPECT_FALSE(mesa.parte.saludado);
            EXPECT_FALSE(mesa.parte.clienteConocido);
        }
    }
}

TEST(CanalTLS, afterAWrongCertificateNothingButAnAlertIsSent)
{
    for (const int version : versiones) {
        MesaTLS mesa{{.par = &parDe(2048), .minima = version, .maxima = version, .admite = &parDe(0)}};
        ASSERT_FALSE(mesa.activar(parDe(1024).pem()));
        EXPECT_EQ(tiposDeRegistro(mesa.parte.recibido), (std::vector{saludo, alerta})) << version;
    }
}

TEST(CanalTLS, aPinThatDoesNotDecodeLetsNobodyIn)
{
    for (const std::string &pem :
         {""s, "basura"s, "-----BEGIN-----\nA\n"s, enPem(parDe(2048).der(), "\r\n")}) {
        MesaTLS mesa{{.par = &parDe(2048)}};
        EXPECT_EQ(mesa.activar(pem).error(), ErrorIOS::tls(certificadoAjeno, -1));
        EXPECT_EQ(mesa.parte.aplicacion, "");
    }
}

TEST(CanalTLS, whatElseIsWrongWithThePinnedCertificateDoesNotMatter)
{
    const ParDePrueba caducado{{.desde = -7200, .hasta = -3600}}, futuro{{.desde = 3600, .hasta = 7200}};
    for (const ParDePrueba *par : {&caducado, &futuro}) {
        MesaTLS mesa{{.par = par}};
        EXPECT_TRUE(mesa.activar(par->pem()));
        EXPECT_TRUE(mesa.conexion->escribir("x"));
        EXPECT_EQ(mesa.parte.aplicacion, "x");
    }
}

TEST(CanalTLS, aHandshakeThatEndsWithoutStoppingForThePeerCheckIsAccepted)
{
    // Without a certificate there is nothing to stop for. The ciphers that allow this must be asked for.
    const char *anonimos = "aNULL:@SECLEVEL=0";
    DispositivoTLS::Parte parte;
    DispositivoTLS dispositivo{{.maxima = TLS1_2_VERSION, .cifrados = anonimos}, parte};
    const auto canal = CanalTLS::negociar(dispositivo, identidadDe(parDe(0)), parDe(2048).der(), anonimos);
    ASSERT_TRUE(canal) << canal.error().errorDescription();
    EXPECT_TRUE((*canal)->escribir("x"));
    EXPECT_EQ(parte.aplicacion, "x");
}

TEST(CanalTLS, aDeviceWithoutACertificateIsNotLetInByItself)
{
    MesaTLS mesa{{.maxima = TLS1_2_VERSION, .cifrados = "aNULL:@SECLEVEL=0"}};
    const auto hecho = mesa.activar(parDe(0).pem());
    ASSERT_FALSE(hecho);
    EXPECT_EQ(hecho.error(), ErrorIOS::tls("negociación", SSL_R_SSLV3_ALERT_HANDSHAKE_FAILURE));
}
