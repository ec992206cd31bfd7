#include "ui/TextosPanel.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace ovanta;

namespace {

EstadoBateria bateriaCon(int porcentaje)
{
    EstadoBateria b;
    b.porcentaje = porcentaje;
    return b;
}

std::string texto(const QString &de)
{
    return de.toStdString();
}

} // namespace

TEST(TextosPanel, aShareIsRoundedToWholePercents)
{
    EXPECT_EQ(texto(textoPorcentaje(0)), "0 %");
    EXPECT_EQ(texto(textoPorcentaje(0.234)), "23 %");
    EXPECT_EQ(texto(textoPorcentaje(0.235)), "24 %");
    EXPECT_EQ(texto(textoPorcentaje(1)), "100 %");
}

TEST(TextosPanel, theProcessorIsOrangeAboveAHalfAndRedAboveFourFifths)
{
    EXPECT_EQ(tinteProcesador(0.5), Tinte::Azul);
    EXPECT_EQ(tinteProcesador(0.501), Tinte::Naranja);
    EXPECT_EQ(tinteProcesador(0.8), Tinte::Naranja);
    EXPECT_EQ(tinteProcesador(0.801), Tinte::Rojo);
}

TEST(TextosPanel, memorySaysItsPressureAndTheCurveIsPurpleWhereTheWordsAreQuiet)
{
    EXPECT_EQ(texto(textoPresion(EstadoMemoria::normal)), "Presión normal");
    EXPECT_EQ(texto(textoPresion(EstadoMemoria::tension)), "Presión alta");
    EXPECT_EQ(texto(textoPresion(EstadoMemoria::critico)), "Presión crítica");
    EXPECT_EQ(tintePresion(EstadoMemoria::normal), Tinte::Secundario);
    EXPECT_EQ(tintePresion(EstadoMemoria::tension), Tinte::Naranja);
    EXPECT_EQ(tintePresion(EstadoMemoria::critico), Tinte::Rojo);
    EXPECT_EQ(tinteCurvaPresion(EstadoMemoria::normal), Tinte::Morado);
    EXPECT_EQ(tinteCurvaPresion(EstadoMemoria::tension), Tinte::Naranja);
    EXPECT_EQ(tinteCurvaPresion(EstadoMemoria::critico), Tinte::Rojo);
}

TEST(TextosPanel, aRateIsInWholeKilobytesBelowAMillionAndInMegabytesFromThere)
{
    const std::pair<double, const char *> casos[]{
        {0, "0 KB/s"},
        {-5, "0 KB/s"},
        {999.9, "0 KB/s"},
        {1000, "1 KB/s"},
        {1499, "1 KB/s"},
        {1500, "2 KB/s"},
        {234'567, "235 KB/s"},
        {999'499, "999 KB/s"},
        {999'999, "1000 KB/s"},
        {1'000'000, "1 MB/s"},
        {1'260'000, "1,3 MB/s"},
        {12'340'000, "12,3 MB/s"},
        {999'949'999, "999,9 MB/s"},
        {2'345'000'000, "2,35 GB/s"},
        {NAN, "0 KB/s"},
    };
    for (const auto &[velocidad, esperado] : casos)
        EXPECT_EQ(texto(textoVelocidad(velocidad)), esperado) << velocidad;
    EXPECT_TRUE(textoVelocidad(INFINITY).endsWith(QStringLiteral(" GB/s")));
}

TEST(TextosPanel, theBatterySaysTheFirstThatAppliesOfChargingMainsAndTime)
{
    EstadoBateria b = bateriaCon(78);
    EXPECT_EQ(texto(textoBateria(b)), "78 %");
    b.minutosRestantes = 185;
    EXPECT_EQ(texto(textoBateria(b)), "78 % · 3 h 5 min");
    b.minutosRestantes = 45;
    EXPECT_EQ(texto(textoBateria(b)), "78 % · 0 h 45 min");
    b.enCorriente = true;
    EXPECT_EQ(texto(textoBateria(b)), "78 % · conectado");
    b.cargando = true;
    EXPECT_EQ(texto(textoBateria(b)), "78 % · cargando");
}

TEST(TextosPanel, theBatterysSymbolFollowsItsCharge)
{
    const std::pair<int, const char *> casos[]{{0, "battery.0"},    {12, "battery.0"},  {13, "battery.25"},
                                               {37, "battery.25"},  {38, "battery.50"}, {62, "battery.50"},
                                               {63, "battery.75"},  {87, "battery.75"}, {88, "battery.100"},
                                               {100, "battery.100"}};
    for (const auto &[carga, simbolo] : casos)
        EXPECT_EQ(texto(simboloBateria(bateriaCon(carga))), simbolo) << carga;
    EstadoBateria cargando = bateriaCon(5);
    cargando.cargando = true;
    EXPECT_EQ(texto(simboloBateria(cargando)), "battery.100.bolt");
}

TEST(TextosPanel, aLowBatteryIsRedUnlessItCharges)
{
    EXPECT_EQ(tinteBateria(bateriaCon(21)), Tinte::Secundario);
    EXPECT_EQ(tinteBateria(bateriaCon(20)), Tinte::Rojo);
    EstadoBateria b = bateriaCon(3);
    b.enCorriente = true;
    EXPECT_EQ(tinteBateria(b), Tinte::Rojo) << "on mains, yet not charging";
    b.cargando = true;
    EXPECT_EQ(tinteBateria(b), Tinte::Secundario);
}

TEST(TextosPanel, theBatterysHealthIsToldWhereItIsKnown)
{
    EstadoBateria b = bateriaCon(50);
    b.ciclos = 214;
    EXPECT_EQ(texto(textoSalud(b)), "");
    EXPECT_EQ(tinteSalud(b), Tinte::Secundario);
    b.salud = 80;
    EXPECT_EQ(texto(textoSalud(b)), "Salud de la batería: 80 % · 214 ciclos");
    EXPECT_EQ(tinteSalud(b), Tinte::Secundario);
    b.salud = 79;
    EXPECT_EQ(texto(textoSalud(b)), "Salud de la batería: 79 % · 214 ciclos · conviene revisarla");
    EXPECT_EQ(tinteSalud(b), Tinte::Naranja);
    b.ciclos.reset();
    EXPECT_EQ(texto(textoSalud(b)), "Salud de la batería: 79 % · conviene revisarla");
}
