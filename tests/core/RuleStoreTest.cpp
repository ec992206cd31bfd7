#include "core/RuleStore.h"
#include "tests/PlataformaDePrueba.h"

#include <QCoroTask>
#include <QSignalSpy>
#include <condition_variable>
#include <fstream>
#include <gmock/gmock.h>
#include <sys/stat.h>

using namespace ovanta;
namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::StartsWith;

namespace {

const std::string noSeEncontro = "No se encontró rules.json dentro de la app. Recompila con build-app.sh.";

std::string entrada(const std::string &id, const std::string &ruta, const std::string &riesgo = "safe")
{
    return R"({"id":")" + id + R"(","name":"n","path":")" + ruta + R"(","category":"ml","risk":")" + riesgo +
           R"(","mode":"self","why":"w","cost":"c"})";
}

struct RuleStoreEn : testing::Test
{
    fs::path carpeta = fs::temp_directory_path() / "rule-store";
    fs::path hogar = carpeta / "casa";
    pruebas::PlataformaDePrueba plataforma;
    RuleStore store{plataforma};

    RuleStoreEn()
    {
        fs::create_directories(hogar);
        plataforma.m_lugares.hogar = hogar;
        plataforma.m_lugares.catalogo = carpeta / "rules.json";
    }
    ~RuleStoreEn() override { fs::remove_all(carpeta); }

    void escribir(const std::string &bytes) const
    {
        std::ofstream(carpeta / "rules.json", std::ios::binary) << bytes;
    }
    void cargar(const std::vector<std::string> &entradas)
    {
        std::string texto;
        for (const auto &una : entradas)
            texto += (texto.empty() ? "" : ",") + una;
        escribir("[" + texto + "]");
        store.cargar();
        ASSERT_EQ(store.error(), std::nullopt);
    }
    void crear(const std::string &nombre) const { fs::create_directories(hogar / nombre); }
    void responder(const std::string &salida)
    {
        plataforma.m_herramientas.alEjecutar = [salida](const auto &, const auto &) { return salida; };
    }
    void medir() { QCoro::waitFor(store.medir()); }
    std::optional<std::uint64_t> bytes(std::size_t i) const { return store.reglas().at(i).bytes; }
};

/// Holds a tool until it is let go.
struct Puerta
{
    std::mutex cerrojo;
    std::condition_variable aviso;
    bool abierta = false;

    void abrir()
    {
        const std::lock_guard guardia{cerrojo};
        abierta = true;
        aviso.notify_all();
    }
    void esperar()
    {
        std::unique_lock guardia{cerrojo};
        aviso.wait(guardia, [this] { return abierta; });
    }
};

} // namespace

TEST_F(RuleStoreEn, startsEmptyAndReadsNothing)
{
    EXPECT_TRUE(store.reglas().empty());
    EXPECT_FALSE(store.midiendo());
    EXPECT_EQ(store.error(), std::nullopt);
    EXPECT_EQ(store.bytesRecuperables(), 0u);
    EXPECT_TRUE(store.porCategoria().empty());
}

TEST_F(RuleStoreEn, anEmptyListLoadsWithNoErrorAndMeasuringReturnsAtOnce)
{
    cargar({});
    QSignalSpy midiendo(&store, &RuleStore::midiendoChanged);
    medir();
    EXPECT_EQ(midiendo.count(), 0);
    EXPECT_TRUE(store.porCategoria().empty());
    EXPECT_TRUE(plataforma.m_herramientas.llamadas.empty());
}

TEST_F(RuleStoreEn, aMissingCatalogueSaysSoAndMeasuringReturnsAtOnce)
{
    store.cargar();
    EXPECT_EQ(store.error(), noSeEncontro);
    medir();
    EXPECT_TRUE(store.reglas().empty());
}

TEST_F(RuleStoreEn, aCatalogueThatCannotBeReadCountsAsMissing)
{
    fs::create_directory(carpeta / "rules.json");
    store.cargar();
    EXPECT_EQ(store.error(), noSeEncontro);
    fs::remove(carpeta / "rules.json");
    ASSERT_EQ(::mkfifo((carpeta / "rules.json").c_str(), 0600), 0);
    store.cargar();
    EXPECT_EQ(store.error(), noSeEncontro);
}

TEST_F(RuleStoreEn, badContentsAreDescribedAndTheOldRulesStay)
{
    cargar({entrada("a", "~/a")});
    for (const char *malo : {"", "[", "{}", "[{}]", R"([{"id":7}])", "\xff"}) {
        escribir(malo);
        store.cargar();
        EXPECT_THAT(store.error().value_or(""), StartsWith("rules.json no se pudo leer: ")) << malo;
        EXPECT_EQ(store.reglas().size(), 1u);
    }
    escribir("[{}]");
    store.cargar();
    EXPECT_EQ(store.error(), "rules.json no se pudo leer: falta la clave «id» en la entrada 1.");
}

TEST_F(RuleStoreEn, aCatalogueOfAHundredMegabytesIsRefusedByItsSize)
{
    escribir("");
    fs::resize_file(carpeta / "rules.json", 100'000'000);
    store.cargar();
    EXPECT_EQ(store.error(), "rules.json no se pudo leer: el archivo pasa del límite de 1048576 bytes.");
}

TEST_F(RuleStoreEn, aLaterSuccessClearsTheErrorAndReplacesTheRules)
{
    cargar({entrada("a", "~/a")});
    escribir("no");
    store.cargar();
    ASSERT_NE(store.error(), std::nullopt);
    cargar({entrada("b", "~/b"), entrada("c", "~/c")});
    EXPECT_EQ(store.error(), std::nullopt);
    EXPECT_EQ(store.reglas().size(), 2u);
}

TEST_F(RuleStoreEn, existingRulesAreMeasuredOneAfterAnotherWithDu)
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

TEST_F(RuleStoreEn, aPathWithoutATildeIsUsedAsItStands)
{
    crear("a");
    cargar({entrada("a", (hogar / "a").string())});
    responder("1\t/x");
    medir();
    EXPECT_EQ(bytes(0), 1024u);
}

TEST_F(RuleStoreEn, aRuleThatIsGoneLosesItsFigureWhenAnotherExists)
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

TEST_F(RuleStoreEn, whenNoRuleExistsOldFiguresStayAndOnlyExistenceChanges)
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

TEST_F(RuleStoreEn, aDanglingLinkCountsAsAbsentAndALinkToAFolderAsPresent)
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

TEST_F(RuleStoreEn, twoRulesWithTheSamePathGetTheSameFigureAndBothCount)
{
    crear("a");
    cargar({entrada("a", "~/a"), entrada("b", "~/a")});
    responder("2\t/x");
    medir();
    EXPECT_EQ(bytes(0), 2048u);
    EXPECT_EQ(bytes(1), 2048u);
    EXPECT_EQ(store.bytesRecuperables(), 4096u);
}

TEST_F(RuleStoreEn, measuringWhileMeasuringHasNoEffectAndDoesNotQueue)
{
    crear("a");
    cargar({entrada("a", "~/a")});
    responder("1\t/x");
    medir();
    Puerta puerta;
    plataforma.m_herramientas.alEjecutar = [&puerta](const auto &, const auto &) {
        puerta.esperar();
        return std::string("5\t/x");
    };
    auto primera = store.medir();
    EXPECT_TRUE(store.midiendo());
    const auto segunda = store.medir();
    EXPECT_TRUE(segunda.isReady());
    EXPECT_EQ(bytes(0), 1024u);
    puerta.abrir();
    QCoro::waitFor(std::move(primera));
    EXPECT_EQ(bytes(0), 5120u);
    EXPECT_FALSE(store.midiendo());
    EXPECT_EQ(plataforma.m_herramientas.llamadas.size(), 2u);
}

TEST_F(RuleStoreEn, sizesGoToTheRulesThatStandWhenTheMeasurementEnds)
{
    crear("a");
    crear("b");
    cargar({entrada("a", "~/a")});
    Puerta puerta;
    plataforma.m_herramientas.alEjecutar = [&puerta](const auto &, const auto &) {
        puerta.esperar();
        return std::string("5\t/x");
    };
    auto medicion = store.medir();
    cargar({entrada("b", "~/b"), entrada("otra", "~/a")});
    puerta.abrir();
    QCoro::waitFor(std::move(medicion));
    EXPECT_EQ(bytes(0), std::nullopt);
    EXPECT_EQ(bytes(1), 5120u);
}

TEST_F(RuleStoreEn, aDuThatCannotRunOrTimesOutLeavesOnlyThatRuleWithoutAFigure)
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

TEST_F(RuleStoreEn, garbageAndNumbersBeyond64BitsGiveNoFigure)
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

TEST_F(RuleStoreEn, theStoreMayGoWhileItMeasures)
{
    crear("a");
    cargar({entrada("a", "~/a")});
    Puerta puerta;
    plataforma.m_herramientas.alEjecutar = [&puerta](const auto &, const auto &) {
        puerta.esperar();
        return std::string("5\t/x");
    };
    auto otro = std::make_unique<RuleStore>(plataforma);
    otro->cargar();
    auto medicion = otro->medir();
    otro.reset();
    puerta.abrir();
    QCoro::waitFor(std::move(medicion));
    EXPECT_EQ(plataforma.m_herramientas.llamadas.size(), 1u);
}
