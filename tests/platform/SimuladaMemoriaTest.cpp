#include "platform/simulada/MemoriaSimulada.h"
#include "platform/simulada/RelojManual.h"
#include "platform/simulada/SensoresSimulados.h"

#include <gtest/gtest.h>

using namespace ovanta;
using namespace std::chrono_literals;
using Nivel = MemoriaSistema::Nivel;

TEST(SimuladaMemoria, fitsIntoTheMachineAtEveryMoment)
{
    RelojManual reloj;
    MemoriaSimulada memoria{reloj};
    EXPECT_EQ(memoria.fisica(), ContadoresSimulados::bytesFisicos);
    for (const Nivel nivel : {Nivel::normal, Nivel::tension, Nivel::critico}) {
        memoria.apretar(nivel);
        for (int i = 0; i < 100; ++i) {
            reloj.avanzar(10s);
            const auto lectura = memoria.leer();
            EXPECT_EQ(lectura.nivel, nivel);
            EXPECT_GT(lectura.apps, 0U);
            EXPECT_LT(lectura.apps + lectura.wired + lectura.comprimida + lectura.cache + lectura.libre,
                      memoria.fisica());
            EXPECT_LT(lectura.swapUsado, lectura.swapTotal);
        }
    }
}

TEST(SimuladaMemoria, writesSwapOnlyWhileItIsShortOfMemory)
{
    RelojManual reloj;
    MemoriaSimulada memoria{reloj};
    const auto escritas = [&](Nivel nivel) {
        memoria.apretar(nivel);
        const auto antes = memoria.leer().swapouts;
        reloj.avanzar(10s);
        return memoria.leer().swapouts - antes;
    };
    EXPECT_EQ(escritas(Nivel::normal), 0U);
    EXPECT_EQ(escritas(Nivel::tension), 1400U) << "more than 50 pages a second, fewer than 500";
    EXPECT_EQ(escritas(Nivel::critico), 13'000U);
    EXPECT_EQ(escritas(Nivel::normal), 0U) << "and the counter never goes back";
}

TEST(SimuladaMemoria, theSameMomentsGiveTheSameFigures)
{
    RelojManual uno;
    RelojManual otro;
    MemoriaSimulada una{uno};
    MemoriaSimulada otra{otro};
    uno.avanzar(123s);
    otro.avanzar(120s);
    otro.avanzar(3s);
    EXPECT_EQ(una.leer(), otra.leer());
}
