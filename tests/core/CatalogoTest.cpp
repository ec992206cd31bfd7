#include "core/Catalogo.h"

#include <gmock/gmock.h>

using namespace ovanta;
using testing::HasSubstr;

namespace {

const std::string entrada = R"({"id":"a","name":"n","path":"~/p","category":"ml","risk":"safe",)"
                            R"("mode":"self","why":"w","cost":"c"})";

/// The entry with the text `de` in it replaced by `por`.
std::string con(const std::string &de, const std::string &por)
{
    std::string texto = entrada;
    return texto.replace(texto.find(de), de.size(), por);
}

/// The description of the failure; empty where the bytes are a catalogue.
std::string fallo(std::string_view bytes)
{
    try {
        decodificarCatalogo(bytes);
        return {};
    } catch (const ErrorDeCatalogo &error) {
        return error.what();
    }
}

} // namespace

TEST(Catalogo, anEntryFillsTheEightTextsAndNothingElse)
{
    const auto reglas = decodificarCatalogo("[" + entrada + "]");
    ASSERT_EQ(reglas.size(), 1u);
    const Regla esperada{"a", "n", "~/p", "ml", "safe", "self", "w", "c", std::nullopt, false};
    EXPECT_EQ(reglas[0], esperada);
}

TEST(Catalogo, anEmptyListIsACatalogueWithoutRules)
{
    EXPECT_TRUE(decodificarCatalogo(" [ ]\n").empty());
}

TEST(Catalogo, entriesKeepTheirOrder)
{
    const auto reglas = decodificarCatalogo("[" + entrada + "," + con("\"a\"", "\"b\"") + "]");
    ASSERT_EQ(reglas.size(), 2u);
    EXPECT_EQ(reglas[0].id, "a");
    EXPECT_EQ(reglas[1].id, "b");
}

TEST(Catalogo, furtherKeysAreIgnoredWhateverTheyHold)
{
    const auto reglas = decodificarCatalogo(
        "[" + con("{", R"({"bytes":5,"existe":true,"x":{"id":7,"y":[{"name":null}]},"z":[[]],"v":-1.5,)") +
        "]");
    ASSERT_EQ(reglas.size(), 1u);
    EXPECT_EQ(reglas[0].id, "a");
    EXPECT_EQ(reglas[0].bytes, std::nullopt);
    EXPECT_FALSE(reglas[0].existe);
}

TEST(Catalogo, ofADuplicateKeyTheLastCounts)
{
    EXPECT_EQ(decodificarCatalogo("[" + con("{", R"({"id":"primero",)") + "]")[0].id, "a");
    EXPECT_EQ(decodificarCatalogo("[" + con("{", R"({"id":7,)") + "]")[0].id, "a");
    EXPECT_EQ(fallo("[" + con("}", R"(,"id":7})") + "]"),
              "la clave «id» de la entrada 1 («a») no es un texto.");
}

TEST(Catalogo, aMissingKeyFailsTheWholeFileAndIsNamed)
{
    for (const char *clave : {"id", "name", "path", "category", "risk", "mode", "why", "cost"}) {
        const std::string quitada = con("\"" + std::string(clave) + "\"", "\"otra\"");
        const std::string texto = fallo("[" + entrada + "," + quitada + "]");
        EXPECT_THAT(texto, HasSubstr("falta la clave «" + std::string(clave) + "» en la entrada 2")) << texto;
    }
}

TEST(Catalogo, aWrongTypeFailsTheWholeFileAndIsNamed)
{
    for (const char *valor : {"7", "null", "true", "-1", "1.5", "[]", "{}", "[\"w\"]", "{\"why\":\"w\"}"}) {
        EXPECT_EQ(fallo("[" + con("\"w\"", valor) + "]"),
                  "la clave «why» de la entrada 1 («a») no es un texto.")
            << valor;
    }
}

TEST(Catalogo, whatIsNoListOfObjectsIsRefused)
{
    for (const char *raiz : {"{}", "7", "null", "\"[]\"", "true"})
        EXPECT_EQ(fallo(raiz), "el contenido no es una lista de reglas.") << raiz;
    for (const char *otra : {"7", "null", "\"x\"", "[]"})
        EXPECT_EQ(fallo("[" + entrada + "," + otra + "]"), "la entrada 2 no es un objeto.") << otra;
}

TEST(Catalogo, anEmptyFileSaysSo)
{
    EXPECT_EQ(fallo(""), "el archivo está vacío.");
}

TEST(Catalogo, everyTruncationOfACatalogueSaysThatItEndsTooEarly)
{
    const std::string bytes = "[" + entrada + "]";
    for (std::size_t hasta = 1; hasta < bytes.size(); ++hasta)
        EXPECT_EQ(fallo(bytes.substr(0, hasta)), "el archivo termina antes de tiempo.") << hasta;
    EXPECT_EQ(fallo(" \n"), "el archivo termina antes de tiempo.");
}

TEST(Catalogo, aSyntaxFaultNamesItsLine)
{
    EXPECT_EQ(fallo("[\n" + entrada + "\n" + entrada + "]"), "no es JSON válido en la línea 3.");
    EXPECT_EQ(fallo("[" + entrada + ",]"), "no es JSON válido en la línea 1.");
    EXPECT_EQ(fallo("[]\n\n[]"), "no es JSON válido en la línea 3.");
    EXPECT_EQ(fallo("// nota\n[]"), "no es JSON válido en la línea 1.");
    EXPECT_EQ(fallo("[" + con("{", R"({"x":1e999,)") + "]"), "no es JSON válido en la línea 1.");
}

TEST(Catalogo, textThatIsNotUTF8IsRefused)
{
    for (const char *bytes : {"\xff", "\xc3", "\xed\xa0\x80", "\xc0\xaf", "\\ud800"})
        EXPECT_THAT(fallo("[" + con("\"w\"", "\"" + std::string(bytes) + "\"") + "]"),
                    HasSubstr("no es JSON"));
}

TEST(Catalogo, deepNestingIsRefusedInAnIgnoredKeyToo)
{
    const std::string hondo = std::string(60, '[') + std::string(60, ']');
    EXPECT_EQ(fallo("[" + con("{", R"({"x":)" + hondo + ",") + "]"), "");
    const std::string masHondo = std::string(63, '[') + std::string(63, ']');
    EXPECT_EQ(fallo("[" + con("{", R"({"x":)" + masHondo + ",") + "]"), "hay más de 64 niveles anidados.");
}

TEST(Catalogo, aHundredMegabytesOfBracketsAreRefusedAtOnce)
{
    const std::string corchetes(100'000'000, '[');
    EXPECT_EQ(fallo(corchetes), "la entrada 1 no es un objeto.");
    EXPECT_EQ(fallo(R"([{"x":)" + corchetes), "hay más de 64 niveles anidados.");
}
