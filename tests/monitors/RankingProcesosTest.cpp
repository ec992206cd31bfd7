#include "monitors/RankingProcesos.h"
#include "tests/Medidas.h"

#include <gmock/gmock.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::Pair;

namespace {

using Politica = AplicacionEnMarcha::Politica;
const std::optional<std::string> propio = "com.belmora.Ovanta";
MuestraProceso muestra(std::int32_t pid, const std::string &nombre, std::optional<std::string> ruta,
                       std::uint64_t huella, std::uint64_t tiempo = 0)
{
    return {pid, nombre, std::move(ruta), huella, tiempo, 7000 + static_cast<std::uint64_t>(pid)};
}

AplicacionEnMarcha app(std::int32_t pid, const std::string &ruta, const std::optional<std::string> &id,
                       const std::optional<std::string> &nombre, Politica politica = Politica::regular)
{
    return {pid, 7000 + static_cast<std::uint64_t>(pid), ruta, id, nombre, politica, "icono"};
}

std::vector<Proceso> ranking(const std::vector<MuestraProceso> &muestras,
                             const std::vector<AplicacionEnMarcha> &apps = {}, const FigurasCPU &figuras = {})
{
    return rankingProcesos(muestras, figuras, apps, propio);
}

} // namespace

TEST(RankingDeProcesos, anApplicationCountsWithAllItsProcesses)
{
    const auto filas =
        ranking({muestra(10, "Navegador", "/Applications/Navegador.app", 300),
                 muestra(11, "Auxiliar", "/Applications/Navegador.app", 900),
                 muestra(12, "suelto", std::nullopt, 500)},
                {app(10, "/Applications/Navegador.app", "org.nav", "Mi navegador")}, {{10, 1.5}, {11, 2.0}});
    ASSERT_EQ(filas.size(), 2U);
    EXPECT_EQ(filas[0], (Proceso{10, 7010, "Mi navegador", 1200, 3.5, 2, true, "icono"}));
    EXPECT_EQ(filas[1], (Proceso{12, 7012, "suelto", 500, 0.0, 1, false, ""}));
}

TEST(RankingDeProcesos, withoutAnApplicationTheLargestProcessStandsForTheGroup)
{
    const auto filas =
        ranking({muestra(10, "a", "/opt/Cosa.v2.app", 300), muestra(11, "b", "/opt/Cosa.v2.app", 900),
                 muestra(12, "c", "/opt/Cosa.v2.app", 900)});
    ASSERT_EQ(filas.size(), 1U);
    EXPECT_EQ(filas[0].id, 11) << "the first of equals";
    EXPECT_EQ(filas[0].inicio, 7011U);
    EXPECT_EQ(filas[0].nombre, "Cosa.v2");
    EXPECT_FALSE(filas[0].sePuedeCerrar);
}

TEST(RankingDeProcesos, anApplicationWithoutANameIsCalledByItsBundleAndKeepsItsPid)
{
    const auto filas = ranking({muestra(10, "a", "/opt/Cosa.app", 1), muestra(11, "b", "/opt/Cosa.app", 9)},
                               {app(10, "/opt/Cosa.app", "org.cosa", std::nullopt)});
    EXPECT_EQ(filas.at(0).nombre, "Cosa");
    EXPECT_EQ(filas.at(0).id, 10);
}

TEST(RankingDeProcesos, aProcessWithAnEmptyPathStandsAloneUnderItsPid)
{
    const auto filas =
        ranking({muestra(123, "pid 123", std::nullopt, 5), muestra(124, "pid 123", std::nullopt, 4)});
    ASSERT_EQ(filas.size(), 2U);
    EXPECT_EQ(filas[0].nombre, "pid 123");
    EXPECT_EQ(filas[0].id, 123);
}

TEST(RankingDeProcesos, aBundleThatIsCalledLikeALoneProcessIsNotTakenForIt)
{
    const auto filas = ranking({muestra(5, "solo", std::nullopt, 5)}, {app(9, "", "org.vacia", "Vacía")});
    EXPECT_EQ(filas.at(0).nombre, "solo");
    EXPECT_FALSE(filas[0].sePuedeCerrar);
}

TEST(RankingDeProcesos, ofTwoApplicationsOfOneBundleTheFirstStays)
{
    const auto filas =
        ranking({muestra(10, "a", "/opt/Cosa.app", 1)},
                {app(-1, "/opt/Cosa.app", "x", "Sin pid"), app(10, "/opt/Cosa.app", "x", "Primera"),
                 app(20, "/opt/Cosa.app", "x", "Segunda")});
    EXPECT_EQ(filas.at(0).nombre, "Primera");
}

TEST(RankingDeProcesos, keepsTheTwentyLargestAndTheOrderOfEquals)
{
    std::vector<MuestraProceso> muestras;
    for (int i = 0; i < 21; ++i)
        muestras.push_back(muestra(100 + i, "p", std::nullopt, i < 3 ? 50 : 1000 - static_cast<unsigned>(i)));
    const auto filas = ranking(muestras);
    ASSERT_EQ(filas.size(), filasDelRanking);
    EXPECT_EQ(filas[0].id, 103);
    EXPECT_EQ(filas[18].id, 100) << "equals stay in the order of the sampling";
    EXPECT_EQ(filas[19].id, 101);
}

TEST(RankingDeProcesos, anEmptyListOfProcessesGivesAnEmptyRanking)
{
    EXPECT_THAT(ranking({}, {app(1, "/a.app", "b", "c")}), IsEmpty());
}

TEST(SePuedeCerrar, dependsOnPolicyAndIdentifier)
{
    struct Caso
    {
        Politica politica;
        std::optional<std::string> id;
        bool esperado;
    };
    using enum Politica;
    for (const Caso &caso : {Caso{regular, "org.a", true}, Caso{regular, "com.apple.mail", true},
                             Caso{regular, std::nullopt, true}, Caso{accesoria, "org.a", true},
                             Caso{accesoria, "com.apple.algo", false}, Caso{accesoria, std::nullopt, false},
                             Caso{prohibida, "org.a", false}, Caso{regular, propio, false},
                             Caso{regular, "com.apple.finder", false}, Caso{regular, "com.apple.dock", false},
                             Caso{regular, "com.apple.loginwindow", false}})
        EXPECT_EQ(sePuedeCerrar(app(1, "/a.app", caso.id, "A", caso.politica), propio), caso.esperado)
            << caso.id.value_or("none");
    EXPECT_FALSE(sePuedeCerrar(app(1, "/a.app", std::nullopt, "A"), std::nullopt))
        << "two missing identifiers count as equal";
}

TEST(FigurasDeCPU, arePerCentOfTheWholeMachine)
{
    const auto antes = tiemposCPU({muestra(1, "a", {}, 1, 1'000'000'000)}, algunaFecha);
    const auto ahora = tiemposCPU({muestra(1, "a", {}, 1, 6'000'000'000)}, algunaFecha + 10s);
    EXPECT_THAT(figurasCPU(antes, ahora, 1), ElementsAre(Pair(1, 50.0)));
    EXPECT_THAT(figurasCPU(antes, ahora, 4), ElementsAre(Pair(1, 12.5)));
    EXPECT_THAT(figurasCPU(antes, ahora, 0), ElementsAre(Pair(1, 50.0))) << "at least one core";
}

TEST(FigurasDeCPU, needMoreThanHalfASecond)
{
    const auto antes = tiemposCPU({muestra(1, "a", {}, 1, 0)}, algunaFecha);
    const auto tras = [&](std::chrono::milliseconds cuanto) {
        return figurasCPU(antes, tiemposCPU({muestra(1, "a", {}, 1, 1'000'000)}, algunaFecha + cuanto), 1)
            .size();
    };
    EXPECT_EQ(tras(200ms), 0U);
    EXPECT_EQ(tras(500ms), 0U);
    EXPECT_EQ(tras(501ms), 1U);
    EXPECT_EQ(tras(-1h), 0U) << "a clock that went back";
}

TEST(FigurasDeCPU, areAbsentForTheNewTheReusedAndTheOnesThatWentBack)
{
    MuestraProceso reusado = muestra(3, "c", {}, 1, 900);
    const auto antes = tiemposCPU({muestra(2, "b", {}, 1, 500), reusado}, algunaFecha);
    reusado.inicio += 1;
    const auto ahora =
        tiemposCPU({muestra(1, "a", {}, 1, 100), muestra(2, "b", {}, 1, 499), reusado}, algunaFecha + 10s);
    EXPECT_THAT(figurasCPU(antes, ahora, 1), IsEmpty());
}
