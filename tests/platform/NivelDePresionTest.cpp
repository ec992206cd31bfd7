#include "platform/linux/NivelDePresion.h"

#include <gtest/gtest.h>

using namespace ovanta;
using enum MemoriaSistema::Nivel;

namespace {

struct Caso
{
    MemoriaSistema::Nivel anterior;
    MedidaDePresion medida;
    MemoriaSistema::Nivel esperado;
};

MedidaDePresion espera(std::uint64_t some, std::uint64_t full)
{
    return {.psi = PresionPSI{some, full}, .disponible = 800, .total = 1000};
}

MedidaDePresion disponible(std::uint64_t deMil)
{
    return {.psi = std::nullopt, .disponible = deMil, .total = 1000};
}

void comprobar(std::initializer_list<Caso> casos)
{
    for (int i = 0; const Caso &caso : casos)
        EXPECT_EQ(nivelDePresion(caso.anterior, caso.medida), caso.esperado) << "case " << i++;
}

} // namespace

TEST(NivelDePresion, risesWithTheTimeThatTasksWait)
{
    comprobar({{normal, espera(0, 0), normal},
               {normal, espera(999, 0), normal},
               {normal, espera(1000, 0), tension},
               {normal, espera(1000, 999), tension},
               {normal, espera(1000, 1000), critico},
               {tension, espera(5000, 1000), critico}});
}

TEST(NivelDePresion, risesAsMemoryRunsOutOnAKernelThatMeasuresNoWaiting)
{
    comprobar({{normal, disponible(800), normal},
               {normal, disponible(100), normal},
               {normal, disponible(99), tension},
               {normal, disponible(50), tension},
               {normal, disponible(49), critico},
               {normal, disponible(0), critico}});
}

TEST(NivelDePresion, fallsOnlyOnceItIsClearlyBetter)
{
    comprobar({{tension, espera(500, 0), tension},
               {tension, espera(499, 0), normal},
               {critico, espera(999, 500), critico},
               {critico, espera(999, 499), tension},
               {critico, espera(499, 499), normal},
               {tension, disponible(119), tension},
               {tension, disponible(120), normal},
               {critico, disponible(59), critico},
               {critico, disponible(60), tension},
               {critico, disponible(120), normal}});
}

TEST(NivelDePresion, doesNotFlutterAroundALimit)
{
    MemoriaSistema::Nivel nivel = normal;
    int cambios = 0;
    for (const std::uint64_t some : {990, 1010, 980, 1020, 900, 1000, 700}) {
        const auto siguiente = nivelDePresion(nivel, espera(some, 0));
        cambios += siguiente != nivel;
        nivel = siguiente;
    }
    EXPECT_EQ(cambios, 1);
    EXPECT_EQ(nivel, tension);
}

TEST(NivelDePresion, memoryOfUnknownSizeTellsNothing)
{
    comprobar({{normal, {}, normal},
               {critico, {}, normal},
               {normal, {.psi = PresionPSI{1000, 0}, .disponible = 0, .total = 0}, tension}});
}
