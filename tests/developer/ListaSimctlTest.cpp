#include "developer/ListaSimctl.h"

#include <gmock/gmock.h>

using namespace ovanta;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

const std::string runtime = "com.apple.CoreSimulator.SimRuntime.iOS-17-5";

std::string conDispositivos(const std::string &lista)
{
    return R"({"devices":{")" + runtime + R"(":)" + lista + "}}";
}

} // namespace

TEST(ListaSimctl, tellsWhatEachDeviceIs)
{
    const auto lista = interpretarSimctl(conDispositivos(
        R"([{"udid":"A-1","name":"iPhone de Ana","state":"Booted","isAvailable":true,"dataPath":"/x"}])"));
    ASSERT_EQ(lista.size(), 1U);
    EXPECT_EQ(lista[0].id, "A-1");
    EXPECT_EQ(lista[0].nombre, "iPhone de Ana");
    EXPECT_EQ(lista[0].runtime, "iOS 17 5");
    EXPECT_TRUE(lista[0].arrancado());
    EXPECT_TRUE(lista[0].disponible);
    EXPECT_EQ(lista[0].creado, std::nullopt);
    EXPECT_EQ(lista[0].bytes, std::nullopt);
}

TEST(ListaSimctl, whatIsMissingOrOfAnotherKindHasItsDefault)
{
    for (const char *ficha : {R"({"udid":"A","name":"B"})", R"({"udid":"A","name":"B","state":7})",
                              R"({"udid":"A","name":"B","isAvailable":"YES"})",
                              R"({"udid":"A","name":"B","isAvailable":1,"state":null})"}) {
        const auto lista = interpretarSimctl(conDispositivos("[" + std::string(ficha) + "]"));
        ASSERT_EQ(lista.size(), 1U) << ficha;
        EXPECT_EQ(lista[0].estado, "Desconocido") << ficha;
        EXPECT_FALSE(lista[0].disponible) << ficha;
    }
}

TEST(ListaSimctl, aDeviceWithoutTextsForIdAndNameIsSkipped)
{
    const auto lista = interpretarSimctl(conDispositivos(
        R"([{"name":"B"},{"udid":"A"},{"udid":4,"name":"B"},{"udid":"A","name":[]},{"udid":"A","name":"C"}])"));
    ASSERT_EQ(lista.size(), 1U);
    EXPECT_EQ(lista[0].nombre, "C");
}

TEST(ListaSimctl, anEmptyListIsAList)
{
    EXPECT_THAT(interpretarSimctl(R"({"devices":{}})"), IsEmpty());
    EXPECT_THAT(interpretarSimctl(conDispositivos("[]")), IsEmpty());
}

TEST(ListaSimctl, anythingElseIsNotUnderstood)
{
    const std::string profundo = std::string(100'000, '[') + std::string(100'000, ']');
    for (const std::string &salida : std::vector<std::string>{
             "", "basura", "[]", "7", "null", "{}", R"({"devices":[]})", R"({"devices":{"a":{}}})",
             R"({"devices":{"a":[1]}})", R"({"devices":{"a":[[]]}})", R"({"devices":{"a":[{}]})",
             "{\"devices\":{\"\xff\":[]}}", R"({"devices":)" + profundo + "}"})
        try {
            interpretarSimctl(salida);
            FAIL() << salida.substr(0, 40);
        } catch (const ErrorDeSimctl &error) {
            EXPECT_STREQ(error.what(), "No se pudo interpretar la salida de simctl.");
        }
}

TEST(ListaSimctl, anIdThatIsNoFileNameHasNoFolder)
{
    EXPECT_EQ(carpetaDeSimulador("/r", "A-1"), "/r/A-1");
    for (const std::string &id : {std::string(), std::string("."), std::string(".."), std::string("../.."),
                                  std::string("/etc"), std::string("a/b"), std::string("a\0b", 3)})
        EXPECT_EQ(carpetaDeSimulador("/r", id), std::nullopt) << id;
}

TEST(ListaSimctl, sizesComeByTheLastComponentOfEachLine)
{
    EXPECT_THAT(interpretarTamanos("12\t/r/A\n 3 \t/r/con\ttabulador/B\n\nbasura\nx\t/r/C\n99\n7\t/r/D"),
                ElementsAre(Pair("A", 12 * 1024U), Pair("B", 3 * 1024U), Pair("D", 7 * 1024U)));
    EXPECT_THAT(interpretarTamanos(""), IsEmpty());
    EXPECT_THAT(interpretarTamanos("18446744073709551615\t/r/A"), IsEmpty());
}
