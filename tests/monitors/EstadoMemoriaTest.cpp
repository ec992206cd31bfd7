#include "monitors/EstadoMemoria.h"
#include "tests/Medidas.h"

#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::chrono_literals;

TEST(EstadoDeMemoria, followsTheKernelUnlessSwapIsWritten)
{
    struct Caso
    {
        EstadoMemoria nivel;
        double ritmo;
        EstadoMemoria esperado;
    };
    using enum EstadoMemoria;
    for (const Caso &caso :
         {Caso{normal, 0, normal}, Caso{normal, 50.0, normal}, Caso{normal, 50.1, tension},
          Caso{normal, 500.0, tension}, Caso{normal, 500.1, critico}, Caso{tension, 0, tension},
          Caso{tension, 500.0, tension}, Caso{tension, 500.1, critico}, Caso{critico, 0, critico},
          Caso{critico, 60.0, critico}})
        EXPECT_EQ(estadoMemoria(caso.nivel, caso.ritmo), caso.esperado)
            << textoEstado(caso.nivel) << " at " << caso.ritmo;
}

TEST(EstadoDeMemoria, hasItsTextsAndTheLevelsOfTheSystem)
{
    EXPECT_EQ(textoEstado(EstadoMemoria::normal), "normal");
    EXPECT_EQ(textoEstado(EstadoMemoria::tension), "tension");
    EXPECT_EQ(textoEstado(EstadoMemoria::critico), "critico");
    EXPECT_EQ(estadoDelNivel(MemoriaSistema::Nivel::normal), EstadoMemoria::normal);
    EXPECT_EQ(estadoDelNivel(MemoriaSistema::Nivel::tension), EstadoMemoria::tension);
    EXPECT_EQ(estadoDelNivel(MemoriaSistema::Nivel::critico), EstadoMemoria::critico);
}

TEST(FraccionDeMemoria, isNothingWhereTheTotalIsNotKnown)
{
    EXPECT_EQ(fraccionMemoria(5, 0), 0.0);
    EXPECT_DOUBLE_EQ(fraccionMemoria(3, 4), 0.75);
}

TEST(RitmoDeSwap, countsPagesASecond)
{
    EXPECT_DOUBLE_EQ(*ritmoSwap({1000, algunaFecha}, {3000, algunaFecha + 10s}), 200.0);
    EXPECT_DOUBLE_EQ(*ritmoSwap({1000, algunaFecha}, {1000, algunaFecha + 10s}), 0.0);
}

TEST(RitmoDeSwap, twoReadingsCloseTogetherCountAsASecond)
{
    EXPECT_DOUBLE_EQ(*ritmoSwap({1000, algunaFecha}, {1030, algunaFecha + 200ms}), 30.0);
}

TEST(RitmoDeSwap, aClockThatWentBackGivesAFiniteFigure)
{
    EXPECT_DOUBLE_EQ(*ritmoSwap({1000, algunaFecha}, {1030, algunaFecha - 3600s}), 30.0);
}

TEST(RitmoDeSwap, aCounterThatWentBackGivesNone)
{
    EXPECT_EQ(ritmoSwap({1000, algunaFecha}, {999, algunaFecha + 10s}), std::nullopt);
}
