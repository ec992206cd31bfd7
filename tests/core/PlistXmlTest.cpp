#include "core/plist/EscribirPlist.h"
#include "core/plist/LeerPlist.h"
#include "tests/core/ArbolPlist.h"
#include "tests/core/PlistAMano.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace ovanta;
using pruebas::ArbolPlist;
using pruebas::enXml;
using namespace std::string_literals;

namespace {

ValorPlist leido(const std::string &valor)
{
    const auto plist = leerPlist(enXml(valor));
    EXPECT_TRUE(plist) << valor << ": " << (plist ? "" : plist.error().motivo);
    return plist.value_or("ilegible");
}

void esRechazado(const std::string &documento)
{
    EXPECT_FALSE(leerPlist(documento)) << documento.substr(0, 200);
}

constexpr double infinito = std::numeric_limits<double>::infinity();

} // namespace

TEST(PlistXml, readsADocumentWithDeclarationTypeAndComments)
{
    const auto plist =
        leerPlist("\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-8'?>\n"
                  "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" \"http://x/y.dtd\">\r\n"
                  "<!-- uno --><?otra cosa?>\n<plist version=\"1.0\">\n<dict>\n"
                  "\t<key>a</key><!-- dos --><array> <true/> <false></false> </array>\n"
                  "</dict></plist>\n<!-- tres -->\n");
    ASSERT_TRUE(plist) << plist.error().motivo;
    EXPECT_EQ(*plist, (ValorPlist{DiccionarioPlist{{"a", ListaPlist{true, false}}}}));
}

TEST(PlistXml, readsEachTypeAndTheEndsOfItsRange)
{
    const std::pair<const char *, ValorPlist> casos[] = {
        {"<true/>", true},
        {"<false/>", false},
        {"<integer>0</integer>", 0},
        {"<integer> 42\n</integer>", 42},
        {"<integer>+7</integer>", 7},
        {"<integer>-1</integer>", -1},
        {"<integer>0x7F</integer>", 127},
        {"<integer>9223372036854775807</integer>", std::numeric_limits<std::int64_t>::max()},
        {"<integer>-9223372036854775808</integer>", std::numeric_limits<std::int64_t>::min()},
        {"<integer>9223372036854775808</integer>", std::uint64_t{1} << 63},
        {"<integer>18446744073709551615</integer>", std::numeric_limits<std::uint64_t>::max()},
        {"<real>1.5</real>", 1.5},
        {"<real>-2e-3</real>", -2e-3},
        {"<real>5</real>", 5.0},
        {"<real>inf</real>", infinito},
        {"<real>-infinity</real>", -infinito},
        {"<real>nan</real>", std::nan("")},
        {"<string/>", ""},
        {"<string></string>", ""},
        {"<string> a\tb\n </string>", " a\tb\n "},
        {"<data/>", DatosPlist{}},
        {"<data>\n\tAAEC\n\t/w==\n</data>", DatosPlist{"\x00\x01\x02\xFF"s}},
        {"<date>2001-01-01T00:00:00Z</date>", Fecha{std::chrono::seconds{978307200}}},
        {"<array/>", ListaPlist{}},
        {"<dict/>", DiccionarioPlist{}},
        {"<dict><key/><string>x</string></dict>", DiccionarioPlist{{"", "x"}}},
        {"<dict><key>CF$UID</key><integer>9</integer></dict>", UidPlist{9}},
        {"<dict><key>CF$UID</key><integer>-9</integer></dict>", DiccionarioPlist{{"CF$UID", -9}}},
    };
    for (const auto &[xml, valor] : casos)
        EXPECT_EQ(leido(xml), valor) << xml;
}

TEST(PlistXml, knowsTheFiveEntitiesCharacterReferencesAndLiteralSections)
{
    EXPECT_EQ(leido("<string>&lt;&gt;&amp;&apos;&quot;</string>"), "<>&'\"");
    EXPECT_EQ(leido("<string>&#65;&#x20AC;&#x1F600;&#13;</string>"), "A€😀\r");
    EXPECT_EQ(leido("<string>a<![CDATA[<b>&amp;]]>c<!-- d -->e</string>"), "a<b>&amp;ce");
    EXPECT_EQ(leido("<string>a\r\nb\rc</string>"), "a\nb\nc");
}

TEST(PlistXml, ofAKeyThatComesTwiceTheLastValueCounts)
{
    const auto valor = leido("<dict><key>b</key><true/><key>a</key><integer>1</integer><key>a</key>"
                             "<integer>2</integer></dict>");
    EXPECT_EQ(valor, (ValorPlist{DiccionarioPlist{{"a", 2}, {"b", true}}}));
}

TEST(PlistXml, refusesOtherEntitiesAndEveryDeclarationOfOnes)
{
    for (const char *entidad : {"&nbsp;", "&", "&;", "&lt", "&#;", "&#x;", "&#0;", "&#xD800;", "&#xFFFE;",
                                "&#x110000;", "&#99999999999999999999;", "&LT;", "&#-5;"})
        esRechazado(enXml("<string>"s + entidad + "</string>"));
    esRechazado("<!DOCTYPE plist [<!ENTITY a \"b\">]>" + enXml("<string>&a;</string>"));
    esRechazado("<!DOCTYPE plist [<!ENTITY a SYSTEM \"file:///etc/passwd\">]>" + enXml("<true/>"));
}

TEST(PlistXml, refusesWhatIsNoPropertyList)
{
    const std::string documentos[] = {"",
                                      " ",
                                      "{}",
                                      "texto",
                                      "<",
                                      "<plist>",
                                      "<plist/>",
                                      "<plist></plist>",
                                      "<true/>",
                                      "<html><true/></html>",
                                      enXml(""),
                                      enXml("<true/><true/>"),
                                      enXml("<true/>") + "x",
                                      enXml("<true/>") + enXml("<true/>"),
                                      enXml("<nada/>"),
                                      enXml("x<true/>"),
                                      enXml("<true>x</true>"),
                                      enXml("<true/>") + "<",
                                      "<plist><true/></array>",
                                      "<?xml version=\"1.0\" encoding=\"UTF-16\"?>" + enXml("<true/>"),
                                      "\xFF\xFE<\0p\0"s,
                                      enXml("<dict><true/></dict>"),
                                      enXml("<dict><key>a</key></dict>"),
                                      enXml("<dict><key>a</key>"),
                                      enXml("<dict><key>a</key><key>b</key></dict>"),
                                      enXml("<array></dict>"),
                                      enXml("<array><true/>"),
                                      enXml("<string>a</key>"),
                                      enXml("<string>a<b/></string>"),
                                      enXml("<string>\xC3</string>"),
                                      enXml("<string>\xC3<!-- -->\xB1</string>"),
                                      enXml("<string>\xED\xA0\x80</string>"),
                                      enXml("</true>"),
                                      enXml("<true/></true>"),
                                      enXml("< true/>"),
                                      enXml("<string>a<![CDATA[b</string>"),
                                      enXml("<!-- <true/>"),
                                      enXml("<string>a"),
                                      enXml("<string"),
                                      "<!DOCTYPE plist" + enXml(""),
                                      enXml("<!DOCTYPE plist><true/>")};
    for (const auto &documento : documentos)
        esRechazado(documento);
}

TEST(PlistXml, refusesNumbersDatesAndDataThatCannotBeRead)
{
    for (const char *valor : {"<integer/>",
                              "<integer> </integer>",
                              "<integer>-</integer>",
                              "<integer>1.5</integer>",
                              "<integer>1 2</integer>",
                              "<integer>18446744073709551616</integer>",
                              "<integer>-9223372036854775809</integer>",
                              "<integer>0x</integer>",
                              "<integer>--1</integer>",
                              "<integer>-+1</integer>",
                              "<integer>a</integer>",
                              "<real/>",
                              "<real>1,5</real>",
                              "<real>1.5x</real>",
                              "<real>+-1</real>",
                              "<real>++1</real>",
                              "<real>1e999</real>",
                              "<date/>",
                              "<date>ayer</date>",
                              "<date>2026-02-30T00:00:00Z</date>",
                              "<data>A</data>",
                              "<data>AA==AA==</data>",
                              "<data>A*==</data>",
                              "<data>====</data>"})
        esRechazado(enXml(valor));
}

TEST(PlistXml, everyTreeComesBackTheSame)
{
    for (unsigned semilla = 0; semilla < 2000; ++semilla) {
        const ValorPlist valor = ArbolPlist{semilla}.valor(8);
        const auto xml = escribirPlistXml(valor);
        ASSERT_TRUE(xml);
        const auto otraVez = leerPlist(*xml);
        ASSERT_TRUE(otraVez) << otraVez.error().motivo << *xml;
        ASSERT_EQ(*otraVez, valor) << *xml;
        ASSERT_EQ(*escribirPlistXml(*otraVez), *xml);
    }
}

TEST(PlistXml, aDocumentCutAtAnyByteIsRefused)
{
    const auto xml = *escribirPlistXml(ArbolPlist{7}.diccionario(5));
    const auto ultima = xml.rfind("</plist>") + 8;
    for (std::size_t i = 0; i < ultima; ++i)
        ASSERT_FALSE(leerPlist(std::string_view{xml}.substr(0, i))) << i;
}

TEST(PlistXml, writesKeysInOrderAndEscapesWhatHasAMeaning)
{
    const auto xml =
        escribirPlistXml(DiccionarioPlist{{"z", 1}, {"a<", "\r&>\""}, {"m", ListaPlist{}}, {"r", 0.1}});
    ASSERT_TRUE(xml);
    EXPECT_EQ(
        *xml,
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
        "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n<plist version=\"1.0\">\n<dict>\n"
        "\t<key>a&lt;</key>\n\t<string>&#13;&amp;&gt;\"</string>\n\t<key>m</key>\n\t<array/>\n"
        "\t<key>r</key>\n\t<real>0.1</real>\n\t<key>z</key>\n\t<integer>1</integer>\n</dict>\n</plist>\n");
}

TEST(PlistXml, refusesToWriteWhatWouldNotComeBack)
{
    using namespace std::chrono;
    for (const std::string &texto : {"\0"s, "\x01"s, "\x1F"s, "\xC3"s, "\xEF\xBF\xBE"s, "\xEF\xBF\xBF"s}) {
        EXPECT_FALSE(escribirPlistXml(texto)) << texto;
        EXPECT_FALSE(escribirPlistXml(DiccionarioPlist{{texto, 1}})) << texto;
    }
    EXPECT_FALSE(escribirPlistXml(Fecha{sys_days{year{10000} / 1 / 1}}));
    EXPECT_FALSE(escribirPlistXml(Fecha{sys_days{year{-1} / 12 / 31}}));
    EXPECT_TRUE(escribirPlistXml(Fecha{sys_days{year{0} / 1 / 1}}));
}
