#include "platform/simulada/RelojManual.h"
#include "platform/simulada/SensoresSimulados.h"

#include <gtest/gtest.h>

using namespace ovanta;
using namespace std::chrono_literals;

namespace {

struct SimuladaSensores : testing::Test
{
    RelojManual reloj;
    ContadoresSimulados contadores{reloj};
    BateriaSimulada bateria{reloj};

    std::optional<EstadoBateria> leer()
    {
        std::optional<EstadoBateria> leido;
        bateria.leer([&leido](const std::optional<EstadoBateria> &estado) { leido = estado; });
        return leido;
    }
};

} // namespace

TEST_F(SimuladaSensores, theProcessorIsBusyAsMuchAsSomebodyWhoWorks)
{
    Contadores::Ticks antes = *contadores.procesador();
    for (int i = 0; i < 200; ++i) {
        reloj.avanzar(2s);
        const Contadores::Ticks ahora = *contadores.procesador();
        const double uso = static_cast<double>(ahora.user + ahora.system + ahora.nice - antes.user -
                                               antes.system - antes.nice);
        const double total = uso + static_cast<double>(ahora.idle - antes.idle);
        EXPECT_NEAR(total, 1600.0, 4.0) << "two seconds of eight cores";
        EXPECT_GT(uso / total, 0.02);
        EXPECT_LT(uso / total, 0.60);
        antes = ahora;
    }
}

TEST_F(SimuladaSensores, theNetworkCountsUpwards)
{
    Contadores::Red antes = contadores.red();
    EXPECT_EQ(antes, Contadores::Red{});
    for (int i = 0; i < 200; ++i) {
        reloj.avanzar(2s);
        const Contadores::Red ahora = contadores.red();
        EXPECT_GT(ahora.entrada, antes.entrada);
        EXPECT_GT(ahora.salida, antes.salida);
        antes = ahora;
    }
}

TEST_F(SimuladaSensores, theMemoryInUseFitsIntoTheMachine)
{
    for (int i = 0; i < 200; ++i) {
        reloj.avanzar(5s);
        const Contadores::Memoria memoria = *contadores.memoria();
        EXPECT_LT(memoria.apps + memoria.wired + memoria.comprimida, memoria.fisica);
    }
}

TEST_F(SimuladaSensores, theBatteryEmptiesUnplugged)
{
    EXPECT_EQ(leer()->porcentaje, 78);
    EXPECT_EQ(leer()->minutosRestantes, 374);
    reloj.avanzar(4h);
    EXPECT_EQ(leer()->porcentaje, 28);
    EXPECT_FALSE(leer()->cargando);
    reloj.avanzar(10h);
    EXPECT_EQ(leer()->porcentaje, 0);
    EXPECT_EQ(leer()->minutosRestantes, std::nullopt);
}

TEST_F(SimuladaSensores, theBatteryFillsPluggedInAndThenRests)
{
    bateria.fijarCarga(0.25);
    bateria.enchufar(true);
    reloj.avanzar(1h);
    EXPECT_EQ(leer()->porcentaje, 75);
    EXPECT_TRUE(leer()->cargando);
    EXPECT_TRUE(leer()->enCorriente);
    EXPECT_EQ(leer()->minutosRestantes, std::nullopt);
    reloj.avanzar(1h);
    EXPECT_EQ(leer()->porcentaje, 100);
    EXPECT_FALSE(leer()->cargando);
    EXPECT_TRUE(leer()->enCorriente);
}

TEST_F(SimuladaSensores, aMachineWithoutBatterySaysSo)
{
    bateria.fijarPresente(false);
    EXPECT_EQ(leer(), std::nullopt);
}
