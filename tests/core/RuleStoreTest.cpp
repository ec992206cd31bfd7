#include "tests/core/ApoyoRuleStore.h"

#include <QSignalSpy>
#include <sys/stat.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using testing::StartsWith;

namespace {

const std::string noSeEncontro = "No se encontró rules.json dentro de la app. Recompila con build-app.sh.";

struct RuleStoreCargar : RuleStoreEn
{
};

} // namespace

TEST_F(RuleStoreCargar, startsEmptyAndReadsNothing)
{
    EXPECT_TRUE(store.reglas().empty());
    EXPECT_FALSE(store.midiendo());
    EXPECT_EQ(store.error(), std::nullopt);
    EXPECT_EQ(store.bytesRecuperables(), 0u);
    EXPECT_TRUE(store.porCategoria().empty());
}

TEST_F(RuleStoreCargar, anEmptyListLoadsWithNoErrorAndMeasuringReturnsAtOnce)
{
    cargar({});
    QSignalSpy midiendo(&store, &RuleStore::midiendoChanged);
    medir();
    EXPECT_EQ(midiendo.count(), 0);
    EXPECT_TRUE(store.porCategoria().empty());
    EXPECT_TRUE(plataforma.m_herramientas.llamadas.empty());
}

TEST_F(RuleStoreCargar, aMissingCatalogueSaysSoAndMeasuringReturnsAtOnce)
{
    store.cargar();
    EXPECT_EQ(store.error(), noSeEncontro);
    medir();
    EXPECT_TRUE(store.reglas().empty());
}

TEST_F(RuleStoreCargar, aCatalogueThatCannotBeReadCountsAsMissing)
{
    fs::create_directory(carpeta / "rules.json");
    store.cargar();
    EXPECT_EQ(store.error(), noSeEncontro);
    fs::remove(carpeta / "rules.json");
    ASSERT_EQ(::mkfifo((carpeta / "rules.json").c_str(), 0600), 0);
    store.cargar();
    EXPECT_EQ(store.error(), noSeEncontro);
}

TEST_F(RuleStoreCargar, badContentsAreDescribedAndTheOldRulesStay)
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

TEST_F(RuleStoreCargar, aCatalogueOfAHundredMegabytesIsRefusedByItsSize)
{
    escribir("");
    fs::resize_file(carpeta / "rules.json", 100'000'000);
    store.cargar();
    EXPECT_EQ(store.error(), "rules.json no se pudo leer: el archivo pasa del límite de 1048576 bytes.");
}

TEST_F(RuleStoreCargar, aLaterSuccessClearsTheErrorAndReplacesTheRules)
{
    cargar({entrada("a", "~/a")});
    escribir("no");
    store.cargar();
    ASSERT_NE(store.error(), std::nullopt);
    cargar({entrada("b", "~/b"), entrada("c", "~/c")});
    EXPECT_EQ(store.error(), std::nullopt);
    EXPECT_EQ(store.reglas().size(), 2u);
}
