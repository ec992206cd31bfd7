#include "analysis/GuardianDeCopias.h"

#include "analysis/Duplicados.h"
#include "tests/analysis/ArbolDeArchivos.h"

#include <gtest/gtest.h>
#include <random>
#include <thread>

namespace ovanta::pruebas {
namespace {

class Guardian : public testing::Test
{
protected:
    void SetUp() override
    {
        for (const char *nombre : {"a", "b", "c"}) {
            arbol.escribir(nombre, "igual");
            arbol.fechar(nombre, 1'500'000'000 + *nombre);
        }
        AccesoArchivosLinux acceso;
        grupos = buscarDuplicados(arbol.archivos(), acceso, nullptr);
        ASSERT_EQ(grupos.size(), 1U);
    }

    std::unique_ptr<GuardianDeCopias::Lote> lote(std::vector<std::string> marcadas)
    {
        for (std::string &ruta : marcadas)
            ruta = arbol.en(ruta);
        return std::make_unique<GuardianDeCopias::Lote>(guardian, grupos, marcadas);
    }

    ArbolDeArchivos arbol;
    std::shared_ptr<GuardianDeCopias> guardian = std::make_shared<GuardianDeCopias>();
    std::vector<GrupoDuplicados> grupos;
};

TEST_F(Guardian, aMarkedCopyMayGoWhileAnotherStays)
{
    EXPECT_TRUE(lote({"b", "c"})->permitir(arbol.en("b")));
}

TEST_F(Guardian, whereAllAreMarkedNoneGoes)
{
    const auto todas = lote({"a", "b", "c"});
    for (const char *nombre : {"a", "b", "c"})
        EXPECT_FALSE(todas->permitir(arbol.en(nombre)));
}

TEST_F(Guardian, whatWasNotMarkedDoesNotGo)
{
    EXPECT_FALSE(lote({"b"})->permitir(arbol.en("c")));
}

TEST_F(Guardian, aCopyThatChangedStays)
{
    arbol.escribir("b", "otro!");
    EXPECT_FALSE(lote({"b"})->permitir(arbol.en("b")));
}

TEST_F(Guardian, aCopyOfTheSameContentThatIsAnotherFileStays)
{
    std::filesystem::remove(arbol.en("b"));
    arbol.escribir("b", "igual");
    EXPECT_FALSE(lote({"b"})->permitir(arbol.en("b")));
}

TEST_F(Guardian, whereTheOthersVanishedTheLastOneStays)
{
    std::filesystem::remove(arbol.en("a"));
    std::filesystem::remove(arbol.en("c"));
    EXPECT_FALSE(lote({"b"})->permitir(arbol.en("b")));
}

TEST_F(Guardian, aCopyReplacedByALinkDoesNotCount)
{
    std::filesystem::rename(arbol.en("a"), arbol.en("movida"));
    HogarTemporal::enlace(arbol.en("a"), arbol.en("b"));
    std::filesystem::remove(arbol.en("c"));
    EXPECT_FALSE(lote({"b"})->permitir(arbol.en("b")));
}

TEST_F(Guardian, aSecondBatchCannotTakeTheOneThatTheFirstCountsOn)
{
    const auto primero = lote({"b", "c"});
    ASSERT_TRUE(primero->permitir(arbol.en("b")));
    EXPECT_FALSE(lote({"a"})->permitir(arbol.en("a")));
    EXPECT_FALSE(GuardianDeCopias::Lote(guardian).permitir(arbol.en("a"))) << "nor a batch of big files";
}

TEST_F(Guardian, aCopyOnItsWayOutInAnotherBatchDoesNotCount)
{
    GuardianDeCopias::Lote grandes(guardian);
    ASSERT_TRUE(grandes.permitir(arbol.en("a")));
    ASSERT_TRUE(grandes.permitir(arbol.en("c")));
    EXPECT_FALSE(lote({"b"})->permitir(arbol.en("b")));
}

TEST_F(Guardian, whenTheBatchEndsItsReservationIsLifted)
{
    ASSERT_TRUE(lote({"b"})->permitir(arbol.en("b")));
    EXPECT_TRUE(GuardianDeCopias::Lote(guardian).permitir(arbol.en("a")));
}

/// Random marks over random groups, two batches at once, and somebody who changes files meanwhile: of
/// what was compared and left alone, every content keeps a copy.
TEST(GuardianPropiedad, theLastCopyOfAContentNeverGoes)
{
    for (unsigned semilla = 0; semilla < 60; ++semilla) {
        std::mt19937 azar(semilla);
        const ArbolDeArchivos arbol;
        constexpr int contenidos = 12;
        for (int c = 0; c < contenidos; ++c)
            for (unsigned i = 0; i < 2 + azar() % 4; ++i)
                arbol.escribir(std::to_string(c) + "/" + std::to_string(i), "contenido " + std::to_string(c));
        AccesoArchivosLinux acceso;
        const auto grupos = buscarDuplicados(arbol.archivos(), acceso, nullptr);
        const auto guardian = std::make_shared<GuardianDeCopias>();

        std::vector<std::string> alterados;
        const auto mover = [&](unsigned suya, bool altera) {
            std::mt19937 suAzar(suya);
            std::vector<std::string> marcadas;
            for (const auto &grupo : grupos)
                for (const auto &copia : grupo.copias)
                    if (suAzar() % 3) marcadas.push_back(copia.ruta);
            std::ranges::shuffle(marcadas, suAzar);
            GuardianDeCopias::Lote lote(guardian, grupos, marcadas);
            for (const std::string &ruta : marcadas) {
                if (altera && suAzar() % 7 == 0) {
                    std::ofstream(ruta, std::ios::app) << "!";
                    alterados.push_back(ruta);
                }
                if (lote.permitir(ruta)) std::filesystem::remove(ruta);
            }
        };
        {
            std::jthread uno(mover, semilla * 2 + 1000, true);
            std::jthread otro(mover, semilla * 2 + 1001, false);
        }
        for (const auto &grupo : grupos) {
            int intactas = 0, cambiadas = 0;
            for (const auto &copia : grupo.copias) {
                intactas += sigueIgual(copia);
                cambiadas += std::ranges::find(alterados, copia.ruta) != alterados.end();
            }
            EXPECT_TRUE(intactas > 0 || cambiadas > 0) << "seed " << semilla;
        }
    }
}

} // namespace
} // namespace ovanta::pruebas
