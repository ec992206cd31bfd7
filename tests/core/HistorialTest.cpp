#include "core/Historial.h"
#include "core/Hexadecimal.h"
#include "core/LeerJson.h"
#include "core/Utf8.h"
#include "core/Uuid.h"

#include <gmock/gmock.h>
#include <set>

using namespace ovanta;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

namespace {

const Movimiento ejemplo{"6F9619FF-8B86-4D01-B42D-00CF4FC964FF", "/home/ana/.cache/pip", 4096,
                         *leerISO8601("2026-11-21T05:18:36Z"), "pip"};

std::string conRuta(std::string_view ruta)
{
    return codificarHistorial({{ejemplo.id, std::string(ruta), 1, ejemplo.fecha, "r"}});
}

/// The example's JSON with one piece of text replaced.
std::string cambiado(std::string_view viejo, std::string_view nuevo)
{
    std::string texto = codificarHistorial({ejemplo});
    const auto donde = texto.find(viejo);
    EXPECT_NE(donde, std::string::npos) << viejo;
    return texto.replace(donde, viejo.size(), nuevo);
}

} // namespace

TEST(Historial, theFileIsAnIndentedListWithItsKeysInOrder)
{
    EXPECT_EQ(codificarHistorial({ejemplo}), R"([
  {
    "id": "6F9619FF-8B86-4D01-B42D-00CF4FC964FF",
    "ruta": "/home/ana/.cache/pip",
    "bytes": 4096,
    "fecha": "2026-11-21T05:18:36Z",
    "regla": "pip"
  }
])");
    EXPECT_EQ(codificarHistorial({}), "[]");
}

TEST(Historial, everyEntryComesBackAsItWas)
{
    auto grande = ejemplo;
    grande.bytes = UINT64_MAX;
    auto rara = ejemplo;
    rara.ruta = "/home/ana/\"comillas\"\n\t\x01 ñ 日本 😀";
    const std::vector<Movimiento> historial{ejemplo, grande, rara};
    EXPECT_EQ(decodificarHistorial(codificarHistorial(historial)), historial);
}

TEST(Historial, aPathThatIsNoUtf8KeepsItsBytesAndTheFileStaysValid)
{
    for (const std::string_view ruta :
         {"/a/\xFF", "/a/\xC3", "/\xED\xA0\x80/b", "\x80\x80\x80", "/\xF5\n\""}) {
        const auto texto = conRuta(ruta);
        EXPECT_TRUE(esUtf8(texto));
        EXPECT_TRUE(nlohmann::json::accept(texto));
        EXPECT_THAT(texto, HasSubstr("\uFFFD"));
        ASSERT_THAT(decodificarHistorial(texto), SizeIs(1));
        EXPECT_EQ(decodificarHistorial(texto)[0].ruta, ruta);
    }
    EXPECT_THAT(conRuta("/a/ñ"), Not(HasSubstr("rutaBytes")));
}

TEST(Historial, aLabelThatIsNoUtf8IsMended)
{
    auto rota = ejemplo;
    rota.regla = "r\xFF";
    EXPECT_EQ(decodificarHistorial(codificarHistorial({rota})).at(0).regla, "r\uFFFD");
}

TEST(Historial, furtherKeysOfAnEntryAreIgnored)
{
    EXPECT_THAT(decodificarHistorial(cambiado("\"id\"", R"("nota": {"a": [1, 2]}, "id")")), SizeIs(1));
}

TEST(Historial, anEntryWithAFaultMakesTheWholeFileEmpty)
{
    const std::vector<std::pair<std::string, std::string>> faltas{
        {"\"id\"", "\"otra\""},
        {"\"ruta\"", "\"otra\""},
        {"\"bytes\"", "\"otra\""},
        {"\"fecha\"", "\"otra\""},
        {"\"regla\"", "\"otra\""},
        {"6F9619FF", "GF9619FF"},
        {"6F9619FF-", "6F9619FF"},
        {"\"6F9619FF-8B86-4D01-B42D-00CF4FC964FF\"", "7"},
        {"4096", "\"4096\""},
        {"4096", "-1"},
        {"4096", "1.5"},
        {"4096", "18446744073709551616"},
        {"4096", "null"},
        {"2026-11-21T05:18:36Z", "ayer"},
        {"2026-11-21T05:18:36Z", "2026-13-21T05:18:36Z"},
        {"\"/home/ana/.cache/pip\"", "[\"/home\"]"},
        {"\"pip\"", "true"},
        {"\"pip\"", R"("pip", "rutaBytes": "XY")"},
        {"\"pip\"", R"("pip", "rutaBytes": 4)"},
        {"\"pip\"", R"("pip", "regla": "pip")"},
        {"\"pip\"", "\"\xFF\""},
        {"\"pip\"", "\"pip"},
    };
    for (const auto &[viejo, nuevo] : faltas) {
        auto texto = cambiado(viejo, nuevo);
        EXPECT_THAT(decodificarHistorial(texto), IsEmpty()) << texto;
    }
}

TEST(Historial, bytesThatAreNoListOfObjectsAreEmpty)
{
    for (const std::string_view texto : {"", " ", "[", "]", "{}", "null", "7", "[7]", "[[]]", "[null]", "[]x",
                                         "\xEF\xBB\xBF", "[{}]", "// nada", "[]\0[]"})
        EXPECT_THAT(decodificarHistorial(texto), IsEmpty()) << texto;
}

TEST(Historial, everyTruncationOfAFileIsEmpty)
{
    const auto texto = codificarHistorial({ejemplo, ejemplo});
    for (std::size_t largo = 0; largo < texto.size(); ++largo)
        EXPECT_THAT(decodificarHistorial(std::string_view(texto).substr(0, largo)), IsEmpty());
}

TEST(Historial, deepNestingIsRefusedWhateverItsDepth)
{
    const std::string hondo(1'000'000, '[');
    EXPECT_THAT(decodificarHistorial(hondo), IsEmpty());
    EXPECT_THAT(decodificarHistorial(hondo + std::string(1'000'000, ']')), IsEmpty());
    EXPECT_THAT(decodificarHistorial(cambiado("\"id\"", "\"nota\": " + hondo + ", \"id\"")), IsEmpty());
}

TEST(Historial, aLongerFileIsCutAtFiveHundred)
{
    const std::vector<Movimiento> muchos(700, ejemplo);
    EXPECT_THAT(decodificarHistorial(codificarHistorial(muchos)), SizeIs(500));
}

TEST(Historial, aBatchGoesBeforeInItsOrderAndTheOldestFallOff)
{
    std::vector<Movimiento> historial(499, ejemplo);
    auto a = ejemplo, b = ejemplo;
    a.ruta = "/a";
    b.ruta = "/b";
    anteponer(historial, {a, b});
    ASSERT_THAT(historial, SizeIs(500));
    EXPECT_EQ(historial[0].ruta, "/a");
    EXPECT_EQ(historial[1].ruta, "/b");
    EXPECT_EQ(historial[2], ejemplo);
}

TEST(LeerJson, aKeyMayReturnInAnotherObjectButNotInTheSame)
{
    EXPECT_TRUE(leerJson(R"([{"a":1,"b":{"a":2}},{"a":3}])"));
    EXPECT_FALSE(leerJson(R"([{"a":1,"a":1}])"));
    EXPECT_FALSE(leerJson(R"([{"b":{"a":2},"b":1}])"));
    EXPECT_FALSE(leerJson(R"([{"a":1,"\u0061":1}])"));
}

TEST(LeerJson, theDepthIsCountedExactly)
{
    EXPECT_TRUE(leerJson("[[[]]]", 3));
    EXPECT_TRUE(leerJson("[[1]]", 2));
    EXPECT_FALSE(leerJson("[[[]]]", 2));
    EXPECT_FALSE(leerJson(R"({"a":{"b":{}}})", 2));
}

TEST(Uuid, everyNewOneIsOfVersionFourAndUnlikeTheOthers)
{
    std::set<std::string> vistos;
    for (int i = 0; i < 1000; ++i) {
        const auto uno = uuidNuevo();
        EXPECT_TRUE(esUuid(uno)) << uno;
        EXPECT_EQ(uno[14], '4');
        EXPECT_THAT(std::string("89AB"), HasSubstr(uno.substr(19, 1)));
        EXPECT_TRUE(vistos.insert(uno).second);
    }
}

TEST(Uuid, onlyItsUsualFormIsOne)
{
    EXPECT_TRUE(esUuid("6f9619ff-8b86-d011-b42d-00cf4fc964ff"));
    for (const char *otro : {"", "6f9619ff8b86d011b42d00cf4fc964ff", "6f9619ff-8b86-d011-b42d-00cf4fc964f",
                             "{6f9619ff-8b86-d011-b42d-00cf4fc964ff}", "6f9619ff-8b86-d011-b42d-00cf4fc964fg",
                             "6f9619ff-8b86-d011-b42d000cf4fc964ff"})
        EXPECT_FALSE(esUuid(otro)) << otro;
}

TEST(Hexadecimal, everyByteComesBack)
{
    std::string todos;
    for (int byte = 0; byte < 256; ++byte)
        todos += static_cast<char>(byte);
    EXPECT_EQ(deHexadecimal(aHexadecimal(todos)), todos);
    EXPECT_EQ(aHexadecimal("\xFF/a"), "FF2F61");
    EXPECT_EQ(deHexadecimal("ff2F"), "\xFF/");
    EXPECT_EQ(deHexadecimal("F"), std::nullopt);
    EXPECT_EQ(deHexadecimal("0x"), std::nullopt);
}
