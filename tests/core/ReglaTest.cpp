#include "core/Regla.h"
#include "core/InterpretarDu.h"

#include <gmock/gmock.h>
#include <unordered_set>

using namespace ovanta;
using testing::ElementsAre;

namespace {

Regla regla(std::string id, std::string categoria, std::optional<std::uint64_t> bytes = {},
            std::string riesgo = "safe")
{
    Regla r;
    r.id = std::move(id);
    r.category = std::move(categoria);
    r.risk = std::move(riesgo);
    r.bytes = bytes;
    return r;
}

std::vector<std::string> ids(const std::vector<Regla> &reglas)
{
    std::vector<std::string> resultado;
    for (const Regla &r : reglas)
        resultado.push_back(r.id);
    return resultado;
}

std::vector<std::string> titulos(const std::vector<GrupoDeReglas> &grupos)
{
    std::vector<std::string> resultado;
    for (const GrupoDeReglas &grupo : grupos)
        resultado.push_back(grupo.titulo);
    return resultado;
}

} // namespace

TEST(Regla, everyKnownCategoryHasItsTitleAndAnotherIsCapitalised)
{
    const std::vector<std::pair<std::string, std::string>> casos{
        {"developer", "Desarrollo"},
        {"ml", "Machine learning"},
        {"browser", "Navegadores"},
        {"cache", "Cachés del sistema"},
        {"user", "Tus carpetas"},
        {"juegos", "Juegos"},
        {"", ""},
        {"Developer", "Developer"},
        {"ábaco y ÑANDÚ", "Ábaco Y Ñandú"},
        {"2d", "2d"},
        {"añejo", "Añejo"},
        {"a÷b ×", "A÷b ×"},
        {"日本", "日本"},
    };
    for (const auto &[clave, titulo] : casos)
        EXPECT_EQ(regla("x", clave).categoriaLegible(), titulo) << clave;
}

TEST(Regla, aDifferenceInAnyFieldMakesTwoRulesDifferent)
{
    const std::vector<std::function<void(Regla &)>> cambios{
        [](Regla &r) { r.id = "y"; },      [](Regla &r) { r.name = "y"; }, [](Regla &r) { r.path = "y"; },
        [](Regla &r) { r.category = ""; }, [](Regla &r) { r.risk = "y"; }, [](Regla &r) { r.mode = "y"; },
        [](Regla &r) { r.why = "y"; },     [](Regla &r) { r.cost = "y"; }, [](Regla &r) { r.bytes = 0; },
        [](Regla &r) { r.existe = true; },
    };
    const Regla original = regla("x", "ml");
    std::unordered_set<Regla> distintas{original, Regla(original)};
    EXPECT_EQ(distintas.size(), 1u);
    for (const auto &cambiar : cambios) {
        Regla otra = original;
        cambiar(otra);
        EXPECT_NE(otra, original);
        distintas.insert(otra);
    }
    EXPECT_EQ(distintas.size(), cambios.size() + 1);
}

TEST(Regla, onlyMeasuredSafeRulesCountAsRecoverable)
{
    EXPECT_EQ(bytesRecuperables({regla("a", "ml", 10), regla("b", "otra", 5), regla("c", "ml"),
                                 regla("d", "ml", 100, "review"), regla("e", "ml", 100, "manual"),
                                 regla("f", "ml", 100, "Safe")}),
              15u);
}

TEST(Regla, aCatalogueThatWasNotMeasuredHasNothingRecoverable)
{
    EXPECT_EQ(bytesRecuperables({regla("a", "ml"), regla("b", "cache")}), 0u);
    EXPECT_EQ(bytesRecuperables({}), 0u);
}

TEST(Regla, twoRulesWithTheSamePathBothCount)
{
    Regla a = regla("a", "ml", 7);
    Regla b = regla("b", "ml", 7);
    a.path = b.path = "~/x";
    EXPECT_EQ(bytesRecuperables({a, b}), 14u);
}

TEST(Regla, categoriesComeInTheirFixedOrderWithMachineLearningSecond)
{
    const auto grupos = porCategoria({regla("u", "user"), regla("b", "browser"), regla("c", "cache"),
                                      regla("m", "ml"), regla("d", "developer")});
    EXPECT_THAT(titulos(grupos), ElementsAre("Desarrollo", "Machine learning", "Cachés del sistema",
                                             "Navegadores", "Tus carpetas"));
    EXPECT_EQ(grupos[1].clave, "ml");
}

TEST(Regla, aCategoryWithoutRulesIsLeftOutAndAnUnknownOneIsInNoGroup)
{
    const auto grupos = porCategoria({regla("a", "juegos", 9), regla("b", "cache")});
    EXPECT_THAT(titulos(grupos), ElementsAre("Cachés del sistema"));
    EXPECT_THAT(ids(grupos[0].reglas), ElementsAre("b"));
    EXPECT_EQ(bytesRecuperables({regla("a", "juegos", 9)}), 9u);
}

TEST(Regla, rulesWithoutASizeSortAfterMeasuredOnesAndKeepFileOrder)
{
    const auto grupos =
        porCategoria({regla("sin1", "ml"), regla("uno", "ml", 1), regla("cero", "ml", 0), regla("sin2", "ml"),
                      regla("mil", "ml", 1000), regla("otro-uno", "ml", 1)});
    EXPECT_THAT(ids(grupos.at(0).reglas), ElementsAre("mil", "uno", "otro-uno", "sin1", "cero", "sin2"));
}

TEST(InterpretarDu, theNumberBeforeTheFirstTabIsKibibytes)
{
    EXPECT_EQ(interpretarDu("12\t/home/ana/x\n"), 12u * 1024);
    EXPECT_EQ(interpretarDu("  12 \t/home/a\tb\n"), 12u * 1024);
    EXPECT_EQ(interpretarDu("0\t/x"), 0u);
    EXPECT_EQ(interpretarDu("12"), 12u * 1024);
    EXPECT_EQ(interpretarDu("18014398509481983\t/x"), UINT64_MAX - 1023);
}

TEST(InterpretarDu, whatIsNoUnsignedNumberOf64BitsGivesNothing)
{
    for (const char *salida : {"", "\t/x", " \t", "-1\t/x", "1.5\t/x", "12K\t/x", "0x10\t/x", "1 2\t/x",
                               "du: no se puede leer\n", "18014398509481984\t/x", "18446744073709551615\t/x",
                               "18446744073709551616\t/x", "99999999999999999999999999\t/x"}) {
        EXPECT_EQ(interpretarDu(salida), std::nullopt) << salida;
    }
}
