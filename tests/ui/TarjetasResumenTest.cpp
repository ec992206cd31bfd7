#include "ui/TarjetasResumen.h"

#include <gtest/gtest.h>

using namespace ovanta;

namespace {

QString enTexto(const TarjetaResumen &t)
{
    return t.titulo + QStringLiteral(" | ") + t.cifra + QStringLiteral(" | ") + t.detalle +
           QStringLiteral(" | ") + t.insignia + QStringLiteral(" | ") + t.seccion;
}

} // namespace

TEST(TarjetasResumen, withNothingAnalysedTheySayTheirEmptyTexts)
{
    const auto tarjetas = tarjetasResumen({});
    const std::vector<QString> esperadas{
        QStringLiteral(
            "Cachés regenerables | 0 GB | Se recrean solas al usar las herramientas | Seguro | espacio"),
        QStringLiteral("Duplicados · tamaño lógico | 0 GB | Sin analizar todavía | Revisar | duplicados"),
        QStringLiteral("Dependencias | 0 GB | Sin analizar todavía | Revisar | pesados"),
        QStringLiteral("Simuladores nuevos | 0 GB | 0 de 0, creados en ≤7 días | Revisar | simuladores"),
        QStringLiteral("Memoria | 0 % | Presión normal · swap 0 GB | Manual | memoria"),
        QStringLiteral("Descargas viejas | 0 GB | 0 sin tocar en 90 días | Manual | pesados")};
    ASSERT_EQ(tarjetas.size(), esperadas.size());
    for (std::size_t i = 0; i < tarjetas.size(); ++i)
        EXPECT_EQ(enTexto(tarjetas[i]), esperadas[i]);
}

TEST(TarjetasResumen, withFiguresTheyTellThem)
{
    EntradasResumen e;
    e.bytesReglas = 1'500'000'000;
    e.gruposDuplicados = 12;
    e.bytesDuplicados = 2'000'000'000;
    e.carpetas = 3;
    e.bytesCarpetas = 700'000'000;
    e.simuladores = 9;
    e.simuladoresNuevos = 2;
    e.bytesNuevos = 3'000'000'000;
    e.presion = 0.426;
    e.memoria = EstadoMemoria::tension;
    e.descargas = 4;
    e.bytesDescargas = 5'000'000;
    const auto tarjetas = tarjetasResumen(e);
    EXPECT_EQ(tarjetas[1].detalle, QStringLiteral("12 grupos · clones APFS pueden compartir bloques"));
    EXPECT_EQ(tarjetas[2].detalle, QStringLiteral("3 carpetas reinstalables"));
    EXPECT_EQ(tarjetas[3].detalle, QStringLiteral("2 de 9, creados en ≤7 días"));
    EXPECT_EQ(tarjetas[3].tinte, Tinte::Naranja);
    EXPECT_EQ(tarjetas[4].cifra, QStringLiteral("43 %"));
    EXPECT_EQ(tarjetas[4].detalle, QStringLiteral("Presión alta · swap 0 GB"));
    EXPECT_EQ(tarjetas[4].tinte, Tinte::Naranja);
    EXPECT_EQ(tarjetas[5].detalle, QStringLiteral("4 sin tocar en 90 días"));
    EXPECT_EQ(bytesRecuperables(e), 7'200'000'000U);
}

TEST(TarjetasResumen, theTintOfMemoryFollowsItsState)
{
    EntradasResumen e;
    EXPECT_EQ(tarjetasResumen(e)[4].tinte, Tinte::Verde);
    e.memoria = EstadoMemoria::critico;
    EXPECT_EQ(tarjetasResumen(e)[4].tinte, Tinte::Rojo);
    EXPECT_TRUE(tarjetasResumen(e)[4].detalle.startsWith(QStringLiteral("Presión crítica")));
    EXPECT_EQ(tarjetasResumen(e)[3].tinte, Tinte::Secundario);
}

TEST(TarjetasResumen, theEstimateHoldsOnlyWhatIsMeasured)
{
    EntradasResumen e;
    EXPECT_EQ(bytesRecuperables(e), 0U);
    e.bytesReglas = 5;
    e.bytesDescargas = 1000;
    EXPECT_EQ(bytesRecuperables(e), 5U);
}

TEST(TarjetasResumen, anyMeasurementUnderWayCounts)
{
    EXPECT_FALSE(midiendoAlgo({}));
    for (bool EntradasResumen::*cual :
         {&EntradasResumen::midiendoReglas, &EntradasResumen::cargandoSimuladores,
          &EntradasResumen::escaneando}) {
        EntradasResumen e;
        e.*cual = true;
        EXPECT_TRUE(midiendoAlgo(e));
    }
}
