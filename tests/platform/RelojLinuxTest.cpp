#include "platform/linux/RelojLinux.h"

#include "tests/platform/BusDePrueba.h"

#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::chrono_literals;

TEST(RelojLinux, theTimerIsAsCoarseAsTheToleranceAllows)
{
    struct Caso
    {
        std::chrono::milliseconds periodo, tolerancia;
        Qt::TimerType tipo;
    };
    const std::vector<Caso> casos = {
        {60s, 5s, Qt::VeryCoarseTimer}, {1s, 500ms, Qt::VeryCoarseTimer}, {1s, 499ms, Qt::CoarseTimer},
        {1500ms, 1s, Qt::CoarseTimer},  {500ms, 500ms, Qt::CoarseTimer},  {2s, 100ms, Qt::CoarseTimer},
        {2s, 99ms, Qt::PreciseTimer},   {60s, 0ms, Qt::PreciseTimer},     {16ms, 0ms, Qt::PreciseTimer},
    };
    for (const Caso &caso : casos)
        EXPECT_EQ(tipoDeTemporizador(caso.periodo, caso.tolerancia), caso.tipo)
            << caso.periodo.count() << " " << caso.tolerancia.count();
}

TEST(RelojLinux, tellsTheTimeOfTheSystem)
{
    const RelojLinux reloj;
    const auto antes = std::chrono::system_clock::now() - 1us;
    const Fecha ahora = reloj.ahora();
    EXPECT_GE(ahora, antes);
    EXPECT_LE(ahora, std::chrono::system_clock::now());
}

TEST(RelojLinux, aRepeatingTimerFiresUntilItIsDestroyed)
{
    RelojLinux reloj;
    int veces = 0;
    auto temporizador = reloj.cada(5ms, 0ms, [&] { ++veces; });
    EXPECT_TRUE(esperarA([&] { return veces >= 3; }));
    temporizador.reset();
    const int antes = veces;
    dejarPasar();
    EXPECT_EQ(veces, antes);
}

TEST(RelojLinux, aSingleTimerFiresOnce)
{
    RelojLinux reloj;
    int veces = 0;
    const auto temporizador = reloj.unaVez(5ms, [&] { ++veces; });
    EXPECT_TRUE(esperarA([&] { return veces == 1; }));
    dejarPasar();
    EXPECT_EQ(veces, 1);
}

TEST(RelojLinux, aTimerMayEndItself)
{
    RelojLinux reloj;
    bool disparado = false;
    std::unique_ptr<Reloj::Temporizador> temporizador;
    temporizador = reloj.cada(5ms, 0ms, [&] {
        temporizador.reset();
        disparado = true;
    });
    EXPECT_TRUE(esperarA([&] { return disparado; }));
}
