#include "tests/Freno.h"
#include "tests/core/ApoyoRuleStore.h"

using namespace ovanta;
using namespace ovanta::pruebas;
using testing::ElementsAre;

namespace {

struct RuleStoreMedir : RuleStoreEn
{
};

} // namespace

TEST_F(RuleStoreMedir, existingRulesAreMeasuredOneAfterAnotherWithDu)
{
    crear("a");
    crear("c");
    cargar({entrada("a", "~/a"), entrada("b", "~/b"), entrada("c", "~/c", "review")});
    responder("3\t/x\n");
    medir();
    EXPECT_THAT(plataforma.m_herramientas.llamadas,
                ElementsAre(ElementsAre("/usr/bin/du", "-sk", (hogar / "a").string()),
                            ElementsAre("/usr/bin/du", "-sk", (hogar / "c").string())));
    EXPECT_EQ(plataforma.m_herramientas.ultimoLimite, 120.0);
    EXPECT_TRUE(plataforma.m_herramientas.ultimoTolerarFallo);
    EXPECT_EQ(bytes(0), 3072u);
    EXPECT_EQ(bytes(2), 3072u);
    EXPECT_TRUE(store.reglas()[0].existe);
    EXPECT_EQ(store.bytesRecuperables(), 3072u);
    EXPECT_FALSE(store.midiendo());
}

TEST_F(RuleStoreMedir, aPathWithoutATildeIsUsedAsItStands)
{
    crear("a");
    cargar({entrada("a", (hogar / "a").string())});
    responder("1\t/x");
    medir();
    EXPECT_EQ(bytes(0), 1024u);
}

TEST_F(RuleStoreMedir, aRuleThatIsGoneLosesItsFigureWhenAnotherExists)
{
    crear("a");
    crear("b");
    cargar({entrada("a", "~/a"), entrada("b", "~/b")});
    responder("1\t/x");
    medir();
    fs::remove(hogar / "a");
    medir();
    EXPECT_FALSE(store.reglas()[0].existe);
    EXPECT_EQ(bytes(0), std::nullopt);
    EXPECT_EQ(bytes(1), 1024u);
}

TEST_F(RuleStoreMedir, whenNoRuleExistsOldFiguresStayAndOnlyExistenceChanges)
{
    crear("a");
    cargar({entrada("a", "~/a")});
    responder("1\t/x");
    medir();
    fs::remove(hogar / "a");
    medir();
    EXPECT_FALSE(store.reglas()[0].existe);
    EXPECT_EQ(bytes(0), 1024u);
    EXPECT_FALSE(store.midiendo());
    EXPECT_EQ(plataforma.m_herramientas.llamadas.size(), 1u);
}

TEST_F(RuleStoreMedir, aDanglingLinkCountsAsAbsentAndALinkToAFolderAsPresent)
{
    crear("real");
    fs::create_symlink(hogar / "nada", hogar / "roto");
    fs::create_symlink(hogar / "real", hogar / "bueno");
    cargar({entrada("a", "~/roto"), entrada("b", "~/bueno"), entrada("c", "~/real\\u0000x")});
    medir();
    EXPECT_FALSE(store.reglas()[0].existe);
    EXPECT_TRUE(store.reglas()[1].existe);
    EXPECT_FALSE(store.reglas()[2].existe);
}

TEST_F(RuleStoreMedir, twoRulesWithTheSamePathGetTheSameFigureAndBothCount)
{
    crear("a");
    cargar({entrada("a", "~/a"), entrada("b", "~/a")});
    responder("2\t/x");
    medir();
    EXPECT_EQ(bytes(0), 2048u);
    EXPECT_EQ(bytes(1), 2048u);
    EXPECT_EQ(store.bytesRecuperables(), 4096u);
}

TEST_F(RuleStoreMedir, measuringWhileMeasuringHasNoEffectAndDoesNotQueue)
{
    crear("a");
    cargar({entrada("a", "~/a")});
    responder("1\t/x");
    medir();
    Freno freno;
    plataforma.m_herramientas.alEjecutar = [&freno](const auto &, const auto &) {
        freno.aqui()();
        return std::string("5\t/x");
    };
    auto primera = store.medir();
    EXPECT_TRUE(store.midiendo());
    const auto segunda = store.medir();
    EXPECT_TRUE(segunda.isReady());
    EXPECT_EQ(bytes(0), 1024u);
    freno.soltar();
    QCoro::waitFor(std::move(primera));
    EXPECT_EQ(bytes(0), 5120u);
    EXPECT_FALSE(store.midiendo());
    EXPECT_EQ(plataforma.m_herramientas.llamadas.size(), 2u);
}

TEST_F(RuleStoreMedir, sizesGoToTheRulesThatStandWhenTheMeasurementEnds)
{
    crear("a");
    crear("b");
    cargar({entrada("a", "~/a")});
    Freno freno;
    plataforma.m_herramientas.alEjecutar = [&freno](const auto &, const auto &) {
        freno.aqui()();
        return std::string("5\t/x");
    };
    auto medicion = store.medir();
    cargar({entrada("b", "~/b"), entrada("otra", "~/a")});
    freno.soltar();
    QCoro::waitFor(std::move(medicion));
    EXPECT_EQ(bytes(0), std::nullopt);
    EXPECT_EQ(bytes(1), 5120u);
}

TEST_F(RuleStoreMedir, aDuThatCannotRunOrTimesOutLeavesOnlyThatRuleWithoutAFigure)
{
    crear("a");
    crear("b");
    cargar({entrada("a", "~/a"), entrada("b", "~/b")});
    responder("1\t/x");
    medir();
    plataforma.m_herramientas.alEjecutar = [](const auto &, const auto &args) -> std::string {
        if (args.back().ends_with("/a")) throw std::runtime_error("agotado");
        return "7\t/x";
    };
    medir();
    EXPECT_EQ(bytes(0), std::nullopt);
    EXPECT_EQ(bytes(1), 7168u);
}

TEST_F(RuleStoreMedir, garbageAndNumbersBeyond64BitsGiveNoFigure)
{
    crear("a");
    cargar({entrada("a", "~/a")});
    for (const char *salida : {"", "basura", "99999999999999999999\t/x", "18446744073709551615\t/x"}) {
        responder("1\t/x");
        medir();
        ASSERT_EQ(bytes(0), 1024u);
        responder(salida);
        medir();
        EXPECT_EQ(bytes(0), std::nullopt) << salida;
    }
}

TEST_F(RuleStoreMedir, theStoreMayGoWhileItMeasures)
{
    crear("a");
    cargar({entrada("a", "~/a")});
    Freno freno;
    plataforma.m_herramientas.alEjecutar = [&freno](const auto &, const auto &) {
        freno.aqui()();
        return std::string("5\t/x");
    };
    auto otro = std::make_unique<RuleStore>(plataforma);
    otro->cargar();
    auto medicion = otro->medir();
    otro.reset();
    freno.soltar();
    QCoro::waitFor(std::move(medicion));
    EXPECT_EQ(plataforma.m_herramientas.llamadas.size(), 1u);
}
