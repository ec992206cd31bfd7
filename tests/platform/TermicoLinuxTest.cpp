#include "platform/linux/TermicoLinux.h"
#include "tests/platform/ArbolDePrueba.h"

#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

struct TermicoLinuxTest : testing::Test
{
    ArbolDePrueba arbol;

    void calentar(int zona, int temperatura) const
    {
        arbol.poner("sys/class/thermal/thermal_zone" + std::to_string(zona) + "/temp",
                    std::to_string(temperatura) + "\n");
    }
    void punto(int zona, int numero, const std::string &clase, int temperatura) const
    {
        const std::string ruta =
            "sys/class/thermal/thermal_zone" + std::to_string(zona) + "/trip_point_" + std::to_string(numero);
        arbol.poner(ruta + "_type", clase + "\n");
        arbol.poner(ruta + "_temp", std::to_string(temperatura) + "\n");
    }
    /// A zone with points at 80, 95 and 105 degrees.
    void zonaCompleta(int zona) const
    {
        punto(zona, 0, "active", 60'000);
        punto(zona, 1, "passive", 80'000);
        punto(zona, 2, "hot", 95'000);
        punto(zona, 3, "critical", 105'000);
    }
    void frenos(int cpu, const std::string &paquete, int nucleo, int todos) const
    {
        const std::string ruta = "sys/devices/system/cpu/cpu" + std::to_string(cpu);
        arbol.poner(ruta + "/topology/physical_package_id", paquete + "\n");
        arbol.poner(ruta + "/thermal_throttle/core_throttle_count", std::to_string(nucleo) + "\n");
        arbol.poner(ruta + "/thermal_throttle/package_throttle_count", std::to_string(todos) + "\n");
    }
};

} // namespace

TEST(ZonaTermica, everyTripPointHasItsState)
{
    const PuntosTermicos todos{80'000, 95'000, 105'000};
    const PuntosTermicos soloCritico{{}, {}, 105'000};
    const struct
    {
        int temperatura;
        PuntosTermicos puntos;
        EstadoTermico estado;
    } casos[] = {
        {74'999, todos, EstadoTermico::nominal},       {75'000, todos, EstadoTermico::fair},
        {79'999, todos, EstadoTermico::fair},          {80'000, todos, EstadoTermico::serious},
        {94'999, todos, EstadoTermico::serious},       {95'000, todos, EstadoTermico::critical},
        {99'999, soloCritico, EstadoTermico::nominal}, {100'000, soloCritico, EstadoTermico::critical},
        {-10'000, todos, EstadoTermico::nominal},
    };
    for (const auto &caso : casos)
        EXPECT_EQ(estadoDeZona(caso.temperatura, caso.puntos), caso.estado) << caso.temperatura;
}

TEST(ZonaTermica, ofSeveralPointsTheLowestCountsAndUnsetOnesDoNot)
{
    PuntosTermicos puntos;
    puntos.anotar("active", 40'000);
    puntos.anotar("passive", 0);
    puntos.anotar("critical", -273'200);
    EXPECT_FALSE(puntos.alguno());
    puntos.anotar("passive", 90'000);
    puntos.anotar("passive", 85'000);
    puntos.anotar("passive", 99'000);
    EXPECT_EQ(puntos.pasivo, 85'000);
}

TEST_F(TermicoLinuxTest, withoutAZoneTheStateIsUnknown)
{
    TermicoLinux termico{arbol.raiz()};
    EXPECT_EQ(termico.estado(), EstadoTermico::desconocido);
}

TEST_F(TermicoLinuxTest, aZoneWithoutTripPointsTellsNothing)
{
    calentar(0, 99'000);
    TermicoLinux termico{arbol.raiz()};
    EXPECT_EQ(termico.estado(), EstadoTermico::desconocido);
}

TEST_F(TermicoLinuxTest, theHottestZoneDecidesAndIsFollowed)
{
    zonaCompleta(0);
    zonaCompleta(1);
    calentar(0, 40'000);
    calentar(1, 76'000);
    TermicoLinux termico{arbol.raiz()};
    EXPECT_EQ(termico.estado(), EstadoTermico::fair);
    calentar(0, 81'000);
    EXPECT_EQ(termico.estado(), EstadoTermico::serious);
    calentar(1, 101'000);
    EXPECT_EQ(termico.estado(), EstadoTermico::critical);
    calentar(0, 30'000);
    calentar(1, 30'000);
    EXPECT_EQ(termico.estado(), EstadoTermico::nominal);
}

TEST_F(TermicoLinuxTest, aZoneThatCannotBeReadNowIsLeftOut)
{
    zonaCompleta(0);
    zonaCompleta(1);
    calentar(1, 30'000);
    arbol.poner("sys/class/thermal/thermal_zone0/temp", "no se sabe\n");
    TermicoLinux termico{arbol.raiz()};
    EXPECT_EQ(termico.estado(), EstadoTermico::nominal);
    arbol.poner("sys/class/thermal/thermal_zone1/temp", "");
    EXPECT_EQ(termico.estado(), EstadoTermico::desconocido);
}

TEST_F(TermicoLinuxTest, aRisingThrottleCountIsSeriousForThatReading)
{
    zonaCompleta(0);
    calentar(0, 30'000);
    frenos(0, "0", 7, 3);
    frenos(1, "0", 7, 3);
    TermicoLinux termico{arbol.raiz()};
    EXPECT_EQ(termico.estado(), EstadoTermico::nominal) << "what was counted before does not matter";
    frenos(1, "0", 8, 3);
    EXPECT_EQ(termico.estado(), EstadoTermico::serious);
    EXPECT_EQ(termico.estado(), EstadoTermico::nominal);
    frenos(0, "0", 7, 4);
    EXPECT_EQ(termico.estado(), EstadoTermico::serious);
    calentar(0, 96'000);
    frenos(0, "0", 7, 5);
    EXPECT_EQ(termico.estado(), EstadoTermico::critical) << "the worse of both";
}

TEST_F(TermicoLinuxTest, throttleCountsThatGoBackMeanNothing)
{
    zonaCompleta(0);
    calentar(0, 30'000);
    frenos(0, "0", 7, 3);
    TermicoLinux termico{arbol.raiz()};
    frenos(0, "0", 1, 0);
    EXPECT_EQ(termico.estado(), EstadoTermico::nominal);
}
