#include "devices/IdentidadTemporal.h"
#include "devices/ConexionIOS.h"
#include "tests/devices/ParDePrueba.h"

#include <gtest/gtest.h>
#include <openssl/x509err.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::string_literals;

namespace {

const ErrorIOS ilegible = ErrorIOS::protocolo("emparejamiento con certificados ilegibles");

std::string derDe(const std::string &pem)
{
    return ConexionIOS::der(pem).value();
}

/// One element of DER.
std::string elemento(char marca, const std::string &contenido)
{
    std::string largo{static_cast<char>(contenido.size())};
    if (contenido.size() > 127)
        largo = "\x82"s + static_cast<char>(contenido.size() >> 8) + static_cast<char>(contenido.size());
    return marca + largo + contenido;
}

std::string pkcs8De(const std::string &interior)
{
    return elemento('\x30',
                    elemento('\x02', "\0"s) + elemento('\x30', "algoritmo") + elemento('\x04', interior));
}

} // namespace

TEST(IdentidadTemporal, isMadeOfAPairWithAKeyInPkcs8OfEachKind)
{
    for (const int bits : {1024, 2048, 4096, 0})
        EXPECT_TRUE(IdentidadTemporal::crear(parDe(bits).pem(), parDe(bits).clavePem())) << bits;
}

TEST(IdentidadTemporal, aPlainPkcs1KeyCountsAsUnreadable)
{
    EXPECT_EQ(IdentidadTemporal::crear(parDe(2048).pem(), parDe(2048).clavePkcs1()).error(), ilegible);
    EXPECT_EQ(IdentidadTemporal::pkcs1(derDe(parDe(2048).clavePkcs1())), std::nullopt);
}

TEST(IdentidadTemporal, whatDoesNotDecodeCountsAsUnreadable)
{
    const auto &par = parDe(2048);
    for (const std::string &mal :
         {""s, "basura"s, enPem("basura"), enPem(par.der(), "\r\n"), par.pem().substr(0, 200)}) {
        EXPECT_EQ(IdentidadTemporal::crear(mal, par.clavePem()).error(), ilegible) << mal;
        EXPECT_EQ(IdentidadTemporal::crear(par.pem(), mal).error(), ilegible) << mal;
    }
}

TEST(IdentidadTemporal, aKeyThatIsNoneCannotBeImported)
{
    const auto hecha = IdentidadTemporal::crear(parDe(2048).pem(), enPem(pkcs8De("no es una clave")));
    ASSERT_FALSE(hecha);
    EXPECT_EQ(hecha.error().caso, ErrorIOS::Caso::tls);
    EXPECT_EQ(hecha.error().texto, "importar");
}

TEST(IdentidadTemporal, theKeyOfAnotherCertificateMakesNoIdentity)
{
    EXPECT_EQ(IdentidadTemporal::crear(parDe(2048).pem(), parDe(1024).clavePem()).error(),
              ErrorIOS::tls("crear identidad", X509_R_KEY_VALUES_MISMATCH));
    const auto otroTipo = IdentidadTemporal::crear(parDe(2048).pem(), parDe(0).clavePem());
    ASSERT_FALSE(otroTipo);
    EXPECT_EQ(otroTipo.error().texto, "crear identidad");
    EXPECT_GT(otroTipo.error().estado, 0);
}

TEST(IdentidadTemporal, anyPrefixOfAKeyIsRefused)
{
    const auto der = derDe(parDe(0).clavePem());
    ASSERT_TRUE(IdentidadTemporal::pkcs1(der));
    for (std::size_t i = 0; i < der.size(); ++i)
        ASSERT_EQ(IdentidadTemporal::pkcs1(der.substr(0, i)), std::nullopt) << i;
}

TEST(IdentidadTemporal, theInnerOctetStringIsTheKey)
{
    EXPECT_EQ(IdentidadTemporal::pkcs1(pkcs8De("clave")), "clave");
    EXPECT_EQ(IdentidadTemporal::pkcs1(pkcs8De("clave") + "y algo más"), "clave");
    EXPECT_EQ(IdentidadTemporal::pkcs1(pkcs8De(std::string(1000, 'k'))), std::string(1000, 'k'));
    EXPECT_EQ(IdentidadTemporal::pkcs1(derDe(parDe(2048).clavePem())), derDe(parDe(2048).clavePkcs1()));
}

TEST(IdentidadTemporal, theOuterLengthIsNotChecked)
{
    auto der = pkcs8De("clave");
    for (const char largo : {'\x00', '\x01', '\x7F', '\x80'}) {
        der[1] = largo;
        EXPECT_EQ(IdentidadTemporal::pkcs1(der), "clave");
    }
    EXPECT_EQ(IdentidadTemporal::pkcs1("\x30\x84\xFF\xFF\xFF\xFF"s + der.substr(2)), "clave");
}

TEST(IdentidadTemporal, anyOtherByteThanTheExpectedGivesNothing)
{
    const auto der = pkcs8De("clave");
    for (const std::size_t lugar : {std::size_t{0}, std::size_t{2}, std::size_t{5}, der.size() - 7}) {
        auto otra = der;
        otra[lugar] = '\x05';
        EXPECT_EQ(IdentidadTemporal::pkcs1(otra), std::nullopt) << lugar;
    }
    for (const std::string &mal :
         {""s, "\x30"s, "\x30\x00"s, "\x30\x80"s, "\x30\x81"s, "\x30\x81\x00"s,
          "\x30\xFF"s + std::string(127, '\xFF'), "\x30\x02\x02\x01"s,
          "\x30\x10\x02\xFF"s + std::string(200, '\xFF'), "\x30\x10\x02\x88"s + std::string(30, '\xFF'),
          "\x30\x10\x02\x01\x00\x30\x00\x04\x00"s,
          "\x30\x10\x02\x01\x00\x30\x00\x04\x05"
          "clav"s,
          "\x30\x10\x02\x01\x00\x30\x00\x04\x89\x01"s + std::string(30, '\0')})
        EXPECT_EQ(IdentidadTemporal::pkcs1(mal), std::nullopt);
}

TEST(DerPem, decodesWhatStandsBetweenTheDashedLines)
{
    EXPECT_EQ(ConexionIOS::der("-----BEGIN X-----\nYWJj\nZGVm\n-----END X-----\n"), "abcdef");
    EXPECT_EQ(ConexionIOS::der("-----BEGIN X-----\nYW\nJj\n"), "abc");
    EXPECT_EQ(ConexionIOS::der("YWJj"), "abc");
    EXPECT_EQ(ConexionIOS::der("-----\n-----"), "");
    EXPECT_EQ(ConexionIOS::der(""), "");
}

TEST(DerPem, carriageReturnsMakeItNothing)
{
    EXPECT_EQ(ConexionIOS::der("-----BEGIN X-----\r\nYWJj\r\n-----END X-----\r\n"), std::nullopt);
    EXPECT_EQ(ConexionIOS::der(enPem("abc", "\r\n")), std::nullopt);
}

TEST(DerPem, anyStrayCharacterMakesItNothing)
{
    for (const char *pem : {"YWJj \n", " YWJj", "YWJ", "YWJj\n ----- X -----\n", "YW\tJj", "\xC3YWJj", "ñ"})
        EXPECT_EQ(ConexionIOS::der(pem), std::nullopt) << pem;
}
