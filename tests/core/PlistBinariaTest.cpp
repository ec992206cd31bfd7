#include "core/plist/LeerPlist.h"
#include "tests/core/PlistAMano.h"

#include <bit>
#include <gtest/gtest.h>

using namespace ovanta;
using pruebas::PlistAMano;
using namespace std::string_literals;

namespace {

std::expected<ValorPlist, ErrorPlist> leer(const std::string &objeto)
{
    return leerPlist(PlistAMano{.objetos = {objeto}}.bytes());
}

std::string real(double valor)
{
    return "\x23" + aBigEndian(std::bit_cast<std::uint64_t>(valor), 8);
}

std::string fecha(double valor)
{
    return "\x33" + aBigEndian(std::bit_cast<std::uint64_t>(valor), 8);
}

} // namespace

TEST(PlistBinaria, readsEachTypeAndTheEndsOfItsRange)
{
    const std::pair<std::string, ValorPlist> casos[] = {
        {"\x08", false},
        {"\x09", true},
        {"\x10\xFF", 255},
        {"\x11\xFF\xFF", 65535},
        {"\x12\xFF\xFF\xFF\xFF", 4294967295},
        {"\x13" + aBigEndian(~0ULL, 8), -1},
        {"\x13" + aBigEndian(1ULL << 63, 8), std::numeric_limits<std::int64_t>::min()},
        {"\x14" + aBigEndian(0, 8) + aBigEndian(~0ULL, 8), std::numeric_limits<std::uint64_t>::max()},
        {"\x14" + aBigEndian(~0ULL, 8) + aBigEndian(1ULL << 63, 8), std::numeric_limits<std::int64_t>::min()},
        {"\x22" + aBigEndian(std::bit_cast<std::uint32_t>(1.5F), 4), 1.5},
        {real(-0.1), -0.1},
        {fecha(0), Fecha{std::chrono::seconds{978307200}}},
        {fecha(-63114076800.0), Fecha{std::chrono::seconds{978307200 - 63114076800}}},
        {"\x40", DatosPlist{}},
        {"\x42\x00\xFF"s, DatosPlist{"\x00\xFF"s}},
        {"\x4F\x10\x0F" + std::string(15, 'x'), DatosPlist{std::string(15, 'x')}},
        {"\x50", ""},
        {"\x53"
         "abc",
         "abc"},
        {"\x5F\x11\x01\x00"s + std::string(256, 'y'), std::string(256, 'y')},
        {"\x63\x00\xF1\xD8\x3D\xDE\x00"s, "ñ😀"},
        {"\x80\x07", UidPlist{7}},
        {"\x87" + aBigEndian(~0ULL, 8), UidPlist{~0ULL}},
        {"\xA0", ListaPlist{}},
        {"\xD0", DiccionarioPlist{}},
    };
    for (const auto &[objeto, valor] : casos) {
        const auto leido = leer(objeto);
        ASSERT_TRUE(leido) << leido.error().motivo;
        EXPECT_EQ(*leido, valor);
    }
}

TEST(PlistBinaria, halfASurrogateBecomesTheReplacementCharacter)
{
    EXPECT_EQ(leer("\x62\xD8\x3D\x00"
                   "a"s),
              ValorPlist{"\uFFFDa"});
    EXPECT_EQ(leer("\x61\xDE\x00"s), ValorPlist{"\uFFFD"});
    EXPECT_EQ(leer("\x61\xD8\x3D"s), ValorPlist{"\uFFFD"});
}

TEST(PlistBinaria, refusesTypesThatNoPropertyListHas)
{
    for (const std::string &objeto : {"\x00"s,
                                      "\x01"s,
                                      "\x0F"s,
                                      "\x15"s + std::string(32, '\0'),
                                      "\x14\x01"s + std::string(15, '\0'),
                                      "\x14"s + std::string(8, '\xFF') + aBigEndian(5, 8),
                                      "\x21\x00\x00"s,
                                      "\x24"s + std::string(16, '\0'),
                                      "\x32\x00\x00\x00\x00"s,
                                      "\x70"s,
                                      "\x88"s + std::string(9, '\0'),
                                      "\x90"s,
                                      "\xB0"s,
                                      "\xC0"s,
                                      "\xE0"s,
                                      "\xF0"s,
                                      "\x51\x80"s,
                                      fecha(std::numeric_limits<double>::quiet_NaN()),
                                      fecha(1e300),
                                      fecha(-std::numeric_limits<double>::infinity())})
        EXPECT_FALSE(leer(objeto)) << std::hex
                                   << static_cast<int>(static_cast<unsigned char>(objeto.front()));
}

TEST(PlistBinaria, refusesLengthsThatDoNotFit)
{
    for (const unsigned tipo : {0x4U, 0x5U, 0x6U, 0xAU, 0xDU})
        for (const std::uint64_t cuantos :
             {1ULL, 14ULL, 15ULL, 255ULL, 1ULL << 31, 1ULL << 61, 1ULL << 62, 1ULL << 63, ~0ULL})
            EXPECT_FALSE(leer(PlistAMano::marca(tipo, cuantos))) << tipo << ' ' << cuantos;
    for (const char *cuenta : {"\x5F", "\x5F\x08", "\x5F\x14", "\x5F\x23", "\x5F\x13\x01", "\x5F\x5F\x5F"})
        EXPECT_FALSE(leer(cuenta));
}

TEST(PlistBinaria, refusesOffsetsAndReferencesThatLeadNowhere)
{
    const PlistAMano base{.objetos = {"\x09"}};
    ASSERT_TRUE(leerPlist(base.bytes()));
    for (const std::uint64_t raiz : {1ULL, 2ULL, 1ULL << 32, ~0ULL}) {
        auto otra = base;
        otra.raiz = raiz;
        EXPECT_FALSE(leerPlist(otra.bytes())) << raiz;
    }
    for (const std::uint64_t desvio : {1ULL, 8ULL, 40ULL, 1ULL << 40, ~0ULL - 8, ~0ULL}) {
        auto otra = base;
        otra.desvioDeTabla = desvio;
        EXPECT_FALSE(leerPlist(otra.bytes())) << desvio;
    }
    for (const std::uint64_t demas : {1ULL, 1ULL << 60, 1ULL << 61, ~0ULL - 1}) {
        auto otra = base;
        otra.objetosDeMas = demas;
        EXPECT_FALSE(leerPlist(otra.bytes())) << demas;
    }
    PlistAMano lista{.objetos = {{}, "\x09"}};
    lista.objetos[0] = lista.lista({1});
    ASSERT_TRUE(leerPlist(lista.bytes()));
    lista.objetos[0] = lista.lista({2});
    EXPECT_FALSE(leerPlist(lista.bytes()));
    lista.objetos[0] = lista.lista({0xFFFFFFFF});
    EXPECT_FALSE(leerPlist(lista.bytes()));
}

TEST(PlistBinaria, refusesWidthsThatAreNone)
{
    for (const std::size_t ancho : {0U, 9U, 255U}) {
        auto bytes = PlistAMano{.objetos = {"\x09"}}.bytes();
        for (const std::size_t lugar : {bytes.size() - 26, bytes.size() - 25}) {
            auto otra = bytes;
            otra[lugar] = static_cast<char>(ancho);
            EXPECT_FALSE(leerPlist(otra));
        }
    }
    for (std::size_t ancho = 1; ancho <= 8; ++ancho)
        EXPECT_TRUE(leerPlist(
            PlistAMano{.objetos = {"\x09"}, .anchoDeSalto = ancho, .anchoDeReferencia = ancho}.bytes()));
}

TEST(PlistBinaria, anOffsetIntoTheHeaderOrTheTableIsRefused)
{
    const auto bytes = PlistAMano{.objetos = {"\x09"}}.bytes();
    for (const std::uint64_t salto : {0ULL, 7ULL, 9ULL, 10ULL, 1ULL << 40, ~0ULL}) {
        auto otra = bytes;
        otra.replace(9, 8, aBigEndian(salto, 8));
        EXPECT_FALSE(leerPlist(otra)) << salto;
    }
}

TEST(PlistBinaria, aKeyThatIsNoTextIsToldApart)
{
    PlistAMano dic{.objetos = {{}, "\x10\x05", "\x09"}};
    dic.objetos[0] = "\xD1" + dic.referencias({1, 2});
    const auto leido = leerPlist(dic.bytes());
    ASSERT_FALSE(leido);
    EXPECT_EQ(leido.error().caso, ErrorPlist::Caso::claveSinTexto);
}

TEST(PlistBinaria, aListCutAtAnyByteIsRefused)
{
    PlistAMano dic{.objetos = {{},
                               "\x53"
                               "uno",
                               "\x63\x00\xF1\x00\xF1\x00\xF1"s,
                               real(2),
                               "\x44\x01\x02\x03\x04"}};
    dic.objetos[0] = "\xD2" + dic.referencias({1, 2, 3, 4});
    const auto bytes = dic.bytes();
    ASSERT_TRUE(leerPlist(bytes));
    for (std::size_t i = 0; i < bytes.size(); ++i)
        ASSERT_FALSE(leerPlist(std::string_view{bytes}.substr(0, i))) << i;
}
