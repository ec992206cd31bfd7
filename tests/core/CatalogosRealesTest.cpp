#include "core/Catalogo.h"
#include "core/LeerArchivo.h"
#include "core/Rutas.h"
#include "core/Seguridad.h"
#include "tests/PreferenciasEnMemoria.h"

#include <cstdlib>
#include <gmock/gmock.h>

using namespace ovanta;
using testing::AnyOf;
using testing::MatchesRegex;

namespace {

/// What the Linux platform adds to the protected places.
const std::vector<std::string> protegidasDeLinux{
    ".local", ".local/share", ".local/state", ".local/share/keyrings", ".var",  ".var/app",
    "snap",   ".mozilla",     ".thunderbird", ".password-store",       ".kube", ".docker",
    ".pki",   ".bashrc",      ".profile"};

/// The catalogues that the product ships, one after the other.
struct CatalogosReales : testing::TestWithParam<std::string>
{
    std::vector<Regla> reglas =
        decodificarCatalogo(leerArchivo(std::string(OVANTA_RECURSOS) + "/" + GetParam() + "/rules.json",
                                        limiteDelCatalogo, EnlaceFinal::seguir));
};

void distintos(const std::vector<Regla> &reglas, std::string Regla::*campo)
{
    std::set<std::string> vistos;
    for (const Regla &regla : reglas)
        EXPECT_TRUE(vistos.insert(regla.*campo).second) << regla.id << ": " << regla.*campo;
}

} // namespace

TEST_P(CatalogosReales, holdsAtLeastSixtyRules)
{
    EXPECT_GE(reglas.size(), 60u);
}

TEST_P(CatalogosReales, idsArePrefixedWithThePlatformAndUnique)
{
    distintos(reglas, &Regla::id);
    for (const Regla &regla : reglas)
        EXPECT_THAT(regla.id, MatchesRegex(GetParam() + "-[a-z0-9]+(-[a-z0-9]+)*"));
}

TEST_P(CatalogosReales, everyKeyHasAValueThatTheProgramKnows)
{
    for (const Regla &regla : reglas) {
        EXPECT_THAT(regla.category, AnyOf("developer", "ml", "browser", "cache", "user")) << regla.id;
        EXPECT_THAT(regla.risk, AnyOf("safe", "review", "manual")) << regla.id;
        EXPECT_THAT(regla.mode, AnyOf("self", "contents")) << regla.id;
    }
}

TEST_P(CatalogosReales, whatBelongsToThePersonIsNeverSafe)
{
    for (const Regla &regla : reglas) {
        if (regla.category == "user") EXPECT_NE(regla.risk, "safe") << regla.id;
    }
}

TEST_P(CatalogosReales, everyRuleExplainsItselfInItsOwnWholeSentences)
{
    for (std::string Regla::*campo : {&Regla::name, &Regla::why, &Regla::cost})
        distintos(reglas, campo);
    for (const Regla &regla : reglas) {
        for (const std::string &texto : {regla.why, regla.cost}) {
            EXPECT_GT(texto.size(), 20u) << regla.id;
            EXPECT_TRUE(texto.ends_with('.') && !texto.ends_with("..")) << regla.id << ": " << texto;
            EXPECT_EQ(texto.find("  "), std::string::npos) << regla.id << ": " << texto;
        }
        EXPECT_FALSE(regla.name.empty() || regla.name.ends_with('.')) << regla.id;
    }
}

TEST_P(CatalogosReales, everyPathIsExactAndUnderTheHome)
{
    for (const Regla &regla : reglas) {
        EXPECT_TRUE(regla.path.starts_with("~/")) << regla.path;
        EXPECT_EQ(regla.path.find_first_of("*?[]$\\"), std::string::npos) << regla.path;
        const std::string entera = expandirTilde(regla.path, "/home/ana");
        EXPECT_EQ(estandarizar(entera), entera);
    }
}

TEST_P(CatalogosReales, noRuleLiesInsideAnother)
{
    for (std::size_t i = 0; i < reglas.size(); ++i) {
        for (std::size_t j = i + 1; j < reglas.size(); ++j) {
            EXPECT_FALSE(cruza(reglas[i].path, reglas[j].path))
                << reglas[i].id << " and " << reglas[j].id << " share files";
        }
    }
}

TEST_P(CatalogosReales, noPathIsRefusedAsAProtectedOne)
{
    const std::string hogar = std::getenv("HOME");
    pruebas::PreferenciasEnMemoria preferencias;
    const Seguridad seguridad({hogar, protegidasDeLinux, {}}, preferencias);
    for (const Regla &regla : reglas) {
        try {
            EXPECT_EQ(seguridad.validar(regla.path), expandirTilde(regla.path, hogar));
        } catch (const Seguridad::Rechazo &rechazo) {
            ADD_FAILURE() << regla.id << ": " << rechazo.motivo;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Platforms, CatalogosReales, testing::Values("linux", "macos"),
                         [](const auto &caso) { return caso.param; });
