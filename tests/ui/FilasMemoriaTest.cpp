#include "ui/FilasMemoria.h"
#include "tests/Medidas.h"
#include "ui/MemoryViewEstado.h"

#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

Proceso proceso(double cpu, std::uint64_t rss, std::size_t cuantos = 1)
{
    return {7, 70, "Cosa", rss, cpu, cuantos, true, ""};
}

} // namespace

TEST(FilaDeProceso, tellsTheProcessorAsTheTableDoes)
{
    struct Caso
    {
        double cpu;
        const char *texto;
        Tinte tinte;
    };
    for (const Caso &caso : {Caso{0, "", Tinte::Secundario}, Caso{0.05, "", Tinte::Secundario},
                             Caso{0.1, "0.1 %", Tinte::Secundario}, Caso{9.9, "9.9 %", Tinte::Secundario},
                             Caso{10.0, "10 %", Tinte::Secundario}, Caso{19.9, "20 %", Tinte::Secundario},
                             Caso{20.0, "20 %", Tinte::Naranja}, Caso{49.9, "50 %", Tinte::Naranja},
                             Caso{50.0, "50 %", Tinte::Rojo}, Caso{100.0, "100 %", Tinte::Rojo}}) {
        const FilaProceso fila = filaDeProceso(proceso(caso.cpu, gib), 16 * gib, false);
        EXPECT_EQ(fila.cpu, QString::fromUtf8(caso.texto)) << caso.cpu;
        EXPECT_EQ(fila.tinteCpu, caso.tinte) << caso.cpu;
    }
}

TEST(FilaDeProceso, tellsTheMemoryAndItsShare)
{
    struct Caso
    {
        std::uint64_t rss;
        double fraccion;
        Tinte tinte;
    };
    for (const Caso &caso :
         {Caso{149, 0.149, Tinte::Azul}, Caso{150, 0.15, Tinte::Naranja}, Caso{249, 0.249, Tinte::Naranja},
          Caso{250, 0.25, Tinte::Rojo}, Caso{1000, 1.0, Tinte::Rojo}, Caso{1700, 1.0, Tinte::Rojo}}) {
        const FilaProceso fila = filaDeProceso(proceso(0, caso.rss), 1000, false);
        EXPECT_DOUBLE_EQ(fila.fraccion, caso.fraccion);
        EXPECT_EQ(fila.tinteMemoria, caso.tinte) << caso.rss;
    }
    EXPECT_EQ(filaDeProceso(proceso(0, 5 * gib / 2), 0, false).memoria, QStringLiteral("2,5 GB"));
}

TEST(FilaDeProceso, countsItsProcessesFromTwoOn)
{
    EXPECT_EQ(filaDeProceso(proceso(0, 1, 1), 10, false).cuantos, QString());
    EXPECT_EQ(filaDeProceso(proceso(0, 1, 2), 10, false).cuantos, QStringLiteral("2 procesos"));
}

TEST(TextosDeCierre, joinWhatClosedAndWhatStayed)
{
    EXPECT_EQ(textoDeCierre({}), QStringLiteral("Las apps seleccionadas ya no estaban abiertas."));
    EXPECT_EQ(textoDeCierre({{"Uno", "Dos"}, {}}), QStringLiteral("Cerradas: Uno, Dos."));
    const QString siguen =
        QStringLiteral("Siguen abiertas: Tres. Puede que estén esperando a que guardes algo, o "
                       "que se hayan escondido en la barra de menú en vez de salir.");
    EXPECT_EQ(textoDeCierre({{}, {{3, "Tres"}}}), siguen);
    EXPECT_EQ(textoDeCierre({{"Uno"}, {{3, "Tres"}}}), QStringLiteral("Cerradas: Uno. ") + siguen);
    EXPECT_EQ(textoDeForzar({}), QStringLiteral("No se pudo forzar la salida."));
    EXPECT_EQ(textoDeForzar({"Uno", "Dos"}), QStringLiteral("Forzada la salida de Uno, Dos."));
}
