#include "devices/XPC.h"

#include "tests/devices/BytesXPC.h"

#include <bit>
#include <gtest/gtest.h>
#include <limits>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

std::optional<ValorXPC> leido(const std::string &bytes)
{
    std::size_t posicion = 0;
    return XPC::valor(bytes, posicion);
}

template <typename T>
std::optional<T> leidoComo(const std::string &bytes)
{
    const auto valor = leido(bytes);
    if (!valor || !valor->como<T>()) return std::nullopt;
    return *valor->como<T>();
}

/// Where reading a value that is there leaves the position.
std::size_t hastaDonde(const std::string &bytes)
{
    std::size_t posicion = 0;
    EXPECT_TRUE(XPC::valor(bytes, posicion).has_value());
    return posicion;
}

const std::string nulo = le(0x1000, 4);

} // namespace

TEST(XPC, anEmptyWrapperIsTwentyFourBytes)
{
    EXPECT_EQ(XPC::envoltura(0x201, false),
              std::string("\x92\x0B\xB0\x29\x01\x02\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00"
                          "\x00\x00\x00\x00\x00\x00\x00\x00",
                          24));
}

TEST(XPC, aWrapperWithPayloadHoldsTheEmptyDictionary)
{
    EXPECT_EQ(XPC::envoltura(1, true),
              std::string("\x92\x0B\xB0\x29\x01\x00\x00\x00\x14\x00\x00\x00\x00\x00\x00\x00"
                          "\x00\x00\x00\x00\x00\x00\x00\x00"
                          "\x42\x37\x13\x42\x05\x00\x00\x00\x00\xF0\x00\x00\x04\x00\x00\x00\x00\x00\x00\x00",
                          44));
}

TEST(XPC, itsOwnEmptyDictionaryReadsBackAsOne)
{
    const std::string bytes = XPC::envoltura(1, true);
    std::size_t posicion = XPC::bytesDePrefijo;
    const auto valor = XPC::valor(std::string_view(bytes).substr(XPC::bytesDeEnvoltura), posicion);
    ASSERT_TRUE(valor && valor->como<ValorXPC::Mapa>());
    EXPECT_TRUE(valor->como<ValorXPC::Mapa>()->empty());
    EXPECT_EQ(posicion, 20u);
}

TEST(XPC, everyKindGivesItsValue)
{
    EXPECT_TRUE(leidoComo<std::nullptr_t>(nulo).has_value());
    EXPECT_EQ(leidoComo<std::int64_t>(le(0x3000, 4) + std::string(8, '\xFF')), -1);
    EXPECT_EQ(leidoComo<std::uint64_t>(le(0x4000, 4) + std::string(8, '\xFF')),
              std::numeric_limits<std::uint64_t>::max());
    EXPECT_EQ(leidoComo<double>(le(0x5000, 4) + le(std::bit_cast<std::uint64_t>(-2.5), 8)), -2.5);
    EXPECT_EQ(leidoComo<std::int64_t>(le(0x7000, 4) + le(1'700'000'000'000, 8)), 1'700'000'000'000);
    EXPECT_EQ(leidoComo<ValorXPC::Datos>(le(0x8000, 4) + le(2, 4) + rellenar("\x01\xFF")),
              (ValorXPC::Datos{1, 255}));
    EXPECT_EQ(leidoComo<std::string>(xpcTexto("año")), "año");
    EXPECT_EQ(leidoComo<ValorXPC::Datos>(le(0xA000, 4) + std::string(16, 'u')), ValorXPC::Datos(16, 'u'));
    const auto lista = leidoComo<ValorXPC::Lista>(xpcLista({nulo, xpcTexto("x")}));
    ASSERT_TRUE(lista && lista->size() == 2);
    EXPECT_EQ(*(*lista)[1].como<std::string>(), "x");
}

TEST(XPC, anyOtherTypeWordGivesNothing)
{
    for (const std::uint32_t tipo :
         {0u, 1u, 0x6000u, 0xB000u, 0xC000u, 0xD000u, 0x10000u, 0x12000u, 0xFFFFFFFFu})
        EXPECT_FALSE(leido(le(tipo, 4) + std::string(64, '\0'))) << tipo;
}

TEST(XPC, aBooleanTakesFourBytes)
{
    EXPECT_EQ(leidoComo<bool>(le(0x2000, 4) + le(0, 4)), false);
    EXPECT_EQ(leidoComo<bool>(le(0x2000, 4) + le(0x1000000, 4)), true);
    EXPECT_EQ(hastaDonde(le(0x2000, 4) + le(1, 4) + nulo), 8u);
    const auto mapa = leido(xpcMapa({{"a", le(0x2000, 4) + le(1, 4)}, {"b", xpcTexto("tras")}}));
    ASSERT_TRUE(mapa && mapa->en("b"));
    EXPECT_EQ(*mapa->en("b")->como<std::string>(), "tras");
}

TEST(XPC, aKeyOfThreeCharactersIsFollowedByItsValueAtTheNextMultipleOfFourAfterTheNul)
{
    for (std::size_t largo = 0; largo < 10; ++largo) {
        const std::string clave(largo, 'k');
        const auto mapa = leido(xpcMapa({{clave, xpcTexto("v")}, {"otra", nulo}}));
        ASSERT_TRUE(mapa && mapa->en(clave)) << largo;
        EXPECT_EQ(*mapa->en(clave)->como<std::string>(), "v");
        EXPECT_TRUE(mapa->en("otra"));
    }
    EXPECT_EQ(hastaDonde(le(0xF000, 4) + le(12, 4) + le(1, 4) + std::string("abc\0", 4) + nulo), 20u);
}

TEST(XPC, keysAlignFromTheStartOfTheWholeBuffer)
{
    // The value begins at 2: its key stands at 14, its end rounds up to 16 seen from the buffer's start.
    const std::string bytes = "__" + le(0xF000, 4) + le(8, 4) + le(1, 4) + std::string("k\0", 2) + nulo;
    std::size_t posicion = 2;
    const auto mapa = XPC::valor(bytes, posicion);
    ASSERT_TRUE(mapa && mapa->en("k"));
    EXPECT_TRUE(mapa->en("k")->como<std::nullptr_t>());
}

TEST(XPC, theTypeWord6000InsideADictionaryMakesThatWholeDictionaryGiveNothing)
{
    EXPECT_FALSE(leido(xpcMapa({{"buena", nulo}, {"mala", le(0x6000, 4)}})));
    EXPECT_FALSE(leido(xpcMapa({{"dentro", xpcMapa({{"mala", le(0x6000, 4) + le(0, 8)}})}})));
    EXPECT_FALSE(leido(xpcLista({nulo, le(0x6000, 4)})));
}

TEST(XPC, aRepeatedKeyKeepsTheLastValue)
{
    const auto mapa = leido(xpcMapa({{"k", xpcTexto("primero")}, {"k", xpcTexto("último")}}));
    ASSERT_TRUE(mapa);
    EXPECT_EQ(*mapa->en("k")->como<std::string>(), "último");
    EXPECT_EQ(mapa->como<ValorXPC::Mapa>()->size(), 1u);
}

TEST(XPC, aTextEndsAtItsFirstNulAndIsRepaired)
{
    EXPECT_EQ(leidoComo<std::string>(le(0x9000, 4) + le(7, 4) + rellenar(std::string("ab\0cd\0", 6) + 'x')),
              "ab");
    EXPECT_EQ(leidoComo<std::string>(le(0x9000, 4) + le(3, 4) + rellenar("abc")), "abc");
    EXPECT_EQ(leidoComo<std::string>(le(0x9000, 4) + le(0, 4)), "");
    EXPECT_EQ(leidoComo<std::string>(le(0x9000, 4) + le(3, 4) + rellenar("a\xFFz")), "a\xEF\xBF\xBDz");
}

TEST(XPC, theLengthOfATextIsCheckedAgainstTheInput)
{
    for (const std::uint32_t tipo : {0x8000u, 0x9000u}) {
        EXPECT_TRUE(leido(le(tipo, 4) + le(4, 4) + "abcd"));
        EXPECT_FALSE(leido(le(tipo, 4) + le(5, 4) + "abcd"));
        EXPECT_FALSE(leido(le(tipo, 4) + le(0xFFFFFFFF, 4) + "abcd"));
        EXPECT_FALSE(leido(le(tipo, 4) + le(0xFFFFFFFF, 3)));
    }
}

TEST(XPC, atTheEndOfTheInputTheFillingBytesMayBeMissing)
{
    EXPECT_EQ(leidoComo<std::string>(le(0x9000, 4) + le(5, 4) + "abcde"), "abcde");
    EXPECT_EQ(hastaDonde(le(0x9000, 4) + le(5, 4) + "abcde"), 16u);
    EXPECT_EQ(hastaDonde(le(0x8000, 4) + le(8, 4) + "abcdefgh"), 16u);
}

TEST(XPC, aFailedReadOfAFixedSizeStillMovesOn)
{
    for (const auto &[tipo, largo] : {std::pair{0x2000u, 4u},
                                      {0x3000u, 8u},
                                      {0x4000u, 8u},
                                      {0x5000u, 8u},
                                      {0x7000u, 8u},
                                      {0xA000u, 16u}}) {
        std::size_t posicion = 0;
        EXPECT_FALSE(XPC::valor(le(tipo, 4) + "abc", posicion)) << tipo;
        EXPECT_EQ(posicion, 4u + largo) << tipo;
    }
}

TEST(XPC, theStatedLengthOfAContainerDecidesWhereItEnds)
{
    // One null inside; the container claims four bytes more, or four less.
    EXPECT_EQ(hastaDonde(le(0xE000, 4) + le(12, 4) + le(1, 4) + nulo + le(99, 4)), 20u);
    EXPECT_EQ(hastaDonde(le(0xE000, 4) + le(4, 4) + le(1, 4) + nulo), 12u);
    const std::string huecos = le(0xE000, 4) + le(8, 4) + le(0, 4) + le(0xBAD, 4);
    const auto lista = leidoComo<ValorXPC::Lista>(xpcLista({huecos, xpcTexto("sigue")}));
    ASSERT_TRUE(lista && lista->size() == 2);
    EXPECT_EQ(*(*lista)[1].como<std::string>(), "sigue");
}

TEST(XPC, aMessageCutAtAnyByteGivesNothingAndNeverReadsBeyond)
{
    const std::string entero = xpcSaludo(xpcMapa({{"com.apple.a", xpcServicio("123")}}));
    ASSERT_TRUE(leido(entero));
    for (std::size_t largo = 0; largo < entero.size(); ++largo)
        EXPECT_FALSE(leido(std::string(entero, 0, largo))) << largo;
}

TEST(XPC, aKeyWithoutItsNulGivesNothing)
{
    EXPECT_FALSE(leido(le(0xF000, 4) + le(8, 4) + le(1, 4) + "clave"));
}

TEST(XPC, valuesNestUpToTheLimit)
{
    const auto anidado = [](int niveles) {
        std::string bytes = le(0x1000, 4);
        for (int i = 0; i < niveles; ++i)
            bytes = xpcLista({bytes});
        return bytes;
    };
    EXPECT_TRUE(leido(anidado(XPC::profundidadMaxima)));
    EXPECT_FALSE(leido(anidado(XPC::profundidadMaxima + 1)));
}

TEST(XPC, twoHundredThousandNestedListsGiveNothing)
{
    std::string bytes;
    for (int i = 0; i < 200'000; ++i)
        bytes += le(0xE000, 4) + le(0xFFFFFFF0, 4) + le(1, 4);
    EXPECT_FALSE(leido(bytes));
    std::string mapas;
    for (int i = 0; i < 200'000; ++i)
        mapas += le(0xF000, 4) + le(0xFFFFFFF0, 4) + le(1, 4) + std::string(4, '\0');
    EXPECT_FALSE(leido(mapas));
}

TEST(XPC, aGiganticCountEndsWithTheInput)
{
    EXPECT_FALSE(leido(le(0xE000, 4) + le(8, 4) + le(0xFFFFFFFF, 4) + nulo + nulo));
    EXPECT_FALSE(leido(le(0xF000, 4) + le(8, 4) + le(0xFFFFFFFF, 4) + xpcClave("k") + nulo));
    EXPECT_TRUE(leido(le(0xE000, 4) + le(4, 4) + le(0, 4)));
}

TEST(XPC, containersThatTurnBackCannotTellTheirBytesForEver)
{
    // Each list of two ends where its first element begins, so that its holder tells that element again:
    // the number of values grows like Fibonacci's.
    const auto vueltas = [](int niveles) {
        std::string bytes;
        for (int i = 0; i < niveles; ++i)
            bytes += le(0xE000, 4) + le(4, 4) + le(2, 4);
        return bytes + nulo + nulo;
    };
    EXPECT_TRUE(leido(vueltas(5)));
    EXPECT_FALSE(leido(vueltas(60)));
}

TEST(XPC, aLargeMessageWhoseBytesAreToldOnceIsRead)
{
    const std::string contenido(4 * 250'000, '\0');
    std::string nulos;
    for (int i = 0; i < 250'000; ++i)
        nulos += nulo;
    const auto lista = leidoComo<ValorXPC::Lista>(xpcContenedor(0xE000, 250'000, nulos));
    ASSERT_TRUE(lista);
    EXPECT_EQ(lista->size(), 250'000u);
    EXPECT_TRUE(leido(le(0x8000, 4) + le(contenido.size(), 4) + contenido));
}
