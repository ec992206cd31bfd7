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

/// Random marks over random groups, and two who move what they marked.
class GuardianPropiedad : public testing::Test
{
protected:
    /// One batch on its way: what it asked for and was allowed lies there for a while before it goes.
    struct Mudanza
    {
        GuardianDeCopias::Lote lote;
        std::vector<std::string> marcadas;
        std::string permitida;

        bool acabada() const { return marcadas.empty() && permitida.empty(); }
        void llevar()
        {
            if (!permitida.empty()) std::filesystem::remove(permitida);
            permitida.clear();
        }
        void pedir()
        {
            const std::string siguiente = marcadas.back();
            marcadas.pop_back();
            if (lote.permitir(siguiente)) permitida = siguiente;
        }
        void paso() { permitida.empty() ? pedir() : llevar(); }
    };

    void sembrar(unsigned semilla)
    {
        azar.seed(semilla);
        arbol = std::make_unique<ArbolDeArchivos>();
        for (int c = 0; c < 12; ++c)
            for (unsigned i = 0; i < 2 + azar() % 4; ++i)
                arbol->escribir(std::to_string(c) + "/" + std::to_string(i),
                                "contenido " + std::to_string(c));
        AccesoArchivosLinux acceso;
        grupos = buscarDuplicados(arbol->archivos(), acceso, nullptr);
    }
    Mudanza mudanza()
    {
        std::vector<std::string> marcadas;
        for (const auto &grupo : grupos)
            for (const auto &copia : grupo.copias)
                if (azar() % 3) marcadas.push_back(copia.ruta);
        std::ranges::shuffle(marcadas, azar);
        return {{guardian, grupos, marcadas}, marcadas, {}};
    }
    /// Contents of which nothing is left that was compared.
    int perdidos() const
    {
        return static_cast<int>(std::ranges::count_if(
            grupos, [](const auto &grupo) { return std::ranges::none_of(grupo.copias, sigueIgual); }));
    }

    std::mt19937 azar;
    std::unique_ptr<ArbolDeArchivos> arbol;
    std::vector<GrupoDuplicados> grupos;
    std::shared_ptr<GuardianDeCopias> guardian = std::make_shared<GuardianDeCopias>();
};

TEST_F(GuardianPropiedad, theLastCopyOfAContentNeverGoesHoweverTwoBatchesInterleave)
{
    for (unsigned semilla = 0; semilla < 60; ++semilla) {
        sembrar(semilla);
        Mudanza uno = mudanza(), otro = mudanza();
        while (!uno.acabada() || !otro.acabada()) {
            Mudanza &suya = otro.acabada() || (!uno.acabada() && azar() % 2) ? uno : otro;
            suya.paso();
        }
        EXPECT_EQ(perdidos(), 0) << "seed " << semilla;
    }
}

TEST_F(GuardianPropiedad, norWhereBothRunAtOnce)
{
    for (unsigned semilla = 100; semilla < 130; ++semilla) {
        sembrar(semilla);
        Mudanza uno = mudanza(), otro = mudanza();
        {
            const auto mover = [](Mudanza &suya) {
                while (!suya.acabada())
                    suya.paso();
            };
            std::jthread primero(mover, std::ref(uno));
            std::jthread segundo(mover, std::ref(otro));
        }
        EXPECT_EQ(perdidos(), 0) << "seed " << semilla;
    }
}

TEST_F(GuardianPropiedad, aCopyThatSomebodyChangesMeanwhileIsNeitherMovedNorCountedOn)
{
    for (unsigned semilla = 200; semilla < 240; ++semilla) {
        sembrar(semilla);
        std::vector<std::string> cambiadas;
        for (const auto &grupo : grupos)
            for (const auto &copia : grupo.copias)
                if (azar() % 4 == 0) cambiadas.push_back(copia.ruta);
        for (const std::string &ruta : cambiadas)
            std::ofstream(ruta, std::ios::app) << "!";
        const int yaPerdidos = perdidos();
        for (Mudanza suya = mudanza(); !suya.acabada();)
            suya.paso();
        EXPECT_EQ(perdidos(), yaPerdidos) << "seed " << semilla;
        for (const std::string &ruta : cambiadas)
            EXPECT_TRUE(std::filesystem::exists(ruta)) << "seed " << semilla;
    }
}

} // namespace
} // namespace ovanta::pruebas
