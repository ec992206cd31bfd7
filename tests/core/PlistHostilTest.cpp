#include "core/plist/EscribirPlist.h"
#include "core/plist/LeerPlist.h"
#include "tests/core/PlistAMano.h"

#include <gtest/gtest.h>
#include <random>

using namespace ovanta;
using pruebas::enXml;
using pruebas::PlistAMano;
using namespace std::string_literals;
using Caso = ErrorPlist::Caso;

namespace {

std::string repetido(std::string_view texto, std::size_t veces)
{
    std::string todo;
    for (std::size_t i = 0; i < veces; ++i)
        todo += texto;
    return todo;
}

std::string listasXml(std::size_t niveles)
{
    return enXml(repetido("<array>", niveles) + repetido("</array>", niveles));
}

/// A chain in which each list holds the next one `veces` times.
std::string cadena(std::size_t niveles, std::size_t veces)
{
    PlistAMano plist;
    for (std::uint64_t i = 0; i < niveles; ++i)
        plist.objetos.push_back(plist.lista(std::vector<std::uint64_t>(i + 1 < niveles ? veces : 0, i + 1)));
    return plist.bytes();
}

void esExcesiva(const std::string &bytes, const LimitesPlist &limites = {})
{
    const auto leido = leerPlist(bytes, limites);
    ASSERT_FALSE(leido);
    EXPECT_EQ(leido.error().caso, Caso::excesiva) << leido.error().motivo;
}

} // namespace

TEST(PlistHostil, nestingOf64IsReadAndOf65RefusedInBothFormats)
{
    EXPECT_TRUE(leerPlist(listasXml(64)));
    EXPECT_TRUE(leerPlist(cadena(64, 1)));
    esExcesiva(listasXml(65));
    esExcesiva(cadena(65, 1));
}

TEST(PlistHostil, nestingOf200000IsRefusedInBothFormats)
{
    esExcesiva(listasXml(200'000));
    esExcesiva(enXml(repetido("<dict><key>a</key>", 200'000)));
    esExcesiva(cadena(200'000, 1));
}

TEST(PlistHostil, sharedListsThatWouldGrowWithoutEndAreRefused)
{
    esExcesiva(cadena(60, 10));
    esExcesiva(cadena(60, 2));
}

TEST(PlistHostil, aLongTextThatIsUsedManyTimesIsRefused)
{
    PlistAMano plist{.objetos = {{}, PlistAMano::marca(0x5, 1 << 20) + std::string(1 << 20, 'x')}};
    plist.objetos[0] = plist.lista(std::vector<std::uint64_t>(64, 1));
    EXPECT_TRUE(leerPlist(plist.bytes()));
    plist.objetos[0] = plist.lista(std::vector<std::uint64_t>(65, 1));
    esExcesiva(plist.bytes());
    plist.objetos[1] = PlistAMano::marca(0x4, 1 << 20) + std::string(1 << 20, 'x');
    esExcesiva(plist.bytes());
}

TEST(PlistHostil, aListThatHoldsItselfIsRefused)
{
    PlistAMano plist{.objetos = {{}}};
    plist.objetos[0] = plist.lista({0});
    EXPECT_FALSE(leerPlist(plist.bytes()));
    plist.objetos = {plist.lista({1}), plist.lista({2}), plist.lista({1, 0})};
    EXPECT_FALSE(leerPlist(plist.bytes()));
    plist.objetos = {"\xD1" + plist.referencias({1, 0}), "\x51"
                                                         "a"};
    EXPECT_FALSE(leerPlist(plist.bytes()));
}

TEST(PlistHostil, moreValuesThanAllowedAreRefused)
{
    const LimitesPlist limites{.objetos = 10};
    const auto lista = [](std::size_t cuantos) {
        return enXml("<array>" + repetido("<true/>", cuantos) + "</array>");
    };
    EXPECT_TRUE(leerPlist(lista(9), limites));
    esExcesiva(lista(10), limites);
    const auto dic = [](std::size_t cuantos) {
        return enXml("<dict>" + repetido("<key>a</key><true/>", cuantos) + "</dict>");
    };
    EXPECT_TRUE(leerPlist(dic(4), limites));
    esExcesiva(dic(5), limites);
    EXPECT_TRUE(leerPlist(cadena(2, 9), limites));
    esExcesiva(cadena(2, 10), limites);
}

TEST(PlistHostil, moreBytesThanAllowedAreRefused)
{
    const LimitesPlist limites{.bytes = 10};
    for (const char *forma : {"<string>X</string>", "<dict><key>X</key><true/></dict>"}) {
        const std::string texto = forma;
        const auto con = [&texto](std::size_t cuantos) {
            auto lleno = texto;
            return enXml(lleno.replace(lleno.find('X'), 1, std::string(cuantos, 'x')));
        };
        EXPECT_TRUE(leerPlist(con(10), limites));
        esExcesiva(con(11), limites);
    }
}

TEST(PlistHostil, aTextOfManyCommentsEntitiesOrSectionsIsReadOnce)
{
    EXPECT_TRUE(leerPlist(enXml("<string>" + repetido("a<!-- b -->", 300'000) + "</string>")));
    EXPECT_TRUE(leerPlist(enXml("<string>" + repetido("&amp;", 300'000) + "</string>")));
    EXPECT_TRUE(leerPlist(enXml("<string>" + repetido("<![CDATA[a]]>", 300'000) + "</string>")));
    EXPECT_TRUE(leerPlist(enXml(repetido("<!-- b -->", 300'000) + "<true/>")));
    EXPECT_FALSE(leerPlist(enXml("<string>" + repetido("&", 300'000))));
    EXPECT_FALSE(leerPlist(enXml("<string>" + repetido("<!--", 300'000))));
}

TEST(PlistHostil, aDictionaryOfManyEqualOrDescendingKeysIsRead)
{
    std::string entradas;
    for (int i = 200'000; i > 0; --i)
        entradas += "<key>" + std::to_string(i % 1000) + "</key><true/>";
    const auto leido = leerPlist(enXml("<dict>" + entradas + "</dict>"));
    ASSERT_TRUE(leido);
    EXPECT_EQ(leido->si<DiccionarioPlist>()->size(), 1000U);
}

TEST(PlistHostil, theWriterStopsAtTheSameDepthAsTheReader)
{
    const auto anidada = [](int niveles) {
        ValorPlist valor = ListaPlist{};
        for (int i = 1; i < niveles; ++i)
            valor = ListaPlist{valor};
        return valor;
    };
    const auto xml = escribirPlistXml(anidada(64));
    ASSERT_TRUE(xml);
    EXPECT_TRUE(leerPlist(*xml));
    EXPECT_FALSE(escribirPlistXml(anidada(65)));
}

TEST(PlistHostil, anyChangeOfSingleBytesGivesAValueOrAnError)
{
    std::mt19937 azar{1};
    PlistAMano dic{.objetos = {{},
                               "\x53"
                               "uno",
                               "\x63\x00\xF1\x00\xF1\x00\xF1"s,
                               "\x13" + aBigEndian(5, 8),
                               {}}};
    dic.objetos[0] = "\xD2" + dic.referencias({1, 2, 3, 4});
    dic.objetos[4] = dic.lista({1, 2, 3});
    const std::string semillas[] = {dic.bytes(), *escribirPlistXml(*leerPlist(dic.bytes()))};
    int sanas = 0;
    for (const auto &semilla : semillas) {
        for (int i = 0; i < 20'000; ++i) {
            auto bytes = semilla;
            for (int cambios = 1 + i % 3; cambios > 0; --cambios)
                bytes[azar() % bytes.size()] = static_cast<char>(azar());
            const auto leido = leerPlist(bytes);
            if (!leido) continue;
            ++sanas;
            const auto xml = escribirPlistXml(*leido);
            if (xml) ASSERT_TRUE(leerPlist(*xml)) << *xml;
        }
    }
    EXPECT_GT(sanas, 0);
}
