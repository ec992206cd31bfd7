#include "analysis/Duplicados.h"

#include "tests/analysis/AccesoConFallos.h"
#include "tests/analysis/ArbolDeArchivos.h"

#include <gmock/gmock.h>

namespace ovanta::pruebas {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;
using testing::UnorderedElementsAre;

class Duplicados : public testing::Test
{
protected:
    std::vector<GrupoDuplicados> buscar() { return buscarDuplicados(arbol.archivos(), acceso, nullptr); }

    std::vector<std::string> nombres(const GrupoDuplicados &grupo) const
    {
        std::vector<std::string> nombres;
        for (const ArchivoHallado &copia : grupo.copias)
            nombres.push_back(copia.ruta.substr(arbol.raiz().size() + 1));
        return nombres;
    }

    ArbolDeArchivos arbol;
    AccesoConFallos acceso;
};

TEST_F(Duplicados, filesThatDifferInTheirHeadAreNotReadAnyFurther)
{
    arbol.escribir("a", "a" + std::string(300'000, 'x'));
    arbol.escribir("b", "b" + std::string(300'000, 'x'));
    EXPECT_THAT(buscar(), IsEmpty());
    EXPECT_LE(acceso.leidosDe(arbol.en("a")), 65536U);
    EXPECT_LE(acceso.leidosDe(arbol.en("b")), 65536U);
}

TEST_F(Duplicados, aFileAloneWithItsSizeIsNotOpened)
{
    arbol.escribir("a", "uno");
    arbol.escribir("b", "cuatro");
    EXPECT_THAT(buscar(), IsEmpty());
    EXPECT_EQ(acceso.leidosDe(arbol.en("a")), 0U);
}

TEST_F(Duplicados, aMebibyteThatDiffersInItsLastByteIsToldApart)
{
    const std::string comun((1 << 20) - 1, 'x');
    arbol.escribir("a", comun + "a");
    arbol.escribir("b", comun + "b");
    arbol.escribir("c", comun + "a");
    const auto grupos = buscar();
    ASSERT_EQ(grupos.size(), 1U);
    EXPECT_THAT(nombres(grupos[0]), UnorderedElementsAre("a", "c"));
}

TEST_F(Duplicados, upToTheHeadTheKeyIsShortAndFromOneByteMoreItIsTheDigest)
{
    for (const char *nombre : {"a", "b"})
        arbol.escribir(nombre, std::string(65536, '\0'));
    auto grupos = buscar();
    ASSERT_EQ(grupos.size(), 1U);
    // Both digests as sha256sum tells them.
    EXPECT_EQ(grupos[0].id, "corto-65536-de2f256064a0af797747c2b97505dc0b9f3df0de4f489eac731c23ae9ca9cc31");

    for (const char *nombre : {"a", "b"})
        arbol.escribir(nombre, std::string(65537, '\0'));
    grupos = buscar();
    ASSERT_EQ(grupos.size(), 1U);
    EXPECT_EQ(grupos[0].id, "3266304f31be278d06c3bd3eb9aa3e00c59bedec0a890de466568b0b90b0e01f");
    EXPECT_EQ(grupos[0].bytes, 65537U);
}

TEST_F(Duplicados, twoHardLinksFormAGroupThatPromisesNoSpace)
{
    arbol.escribir("a", "contenido");
    arbol.enlazar("a", "b");
    const auto grupos = buscar();
    ASSERT_EQ(grupos.size(), 1U);
    EXPECT_EQ(grupos[0].copias.size(), 2U);
    EXPECT_EQ(grupos[0].desperdiciado(), 0U);
}

TEST_F(Duplicados, eachInodeIsReadOnlyOnce)
{
    arbol.escribir("a", std::string(1000, 'x'));
    for (const char *otro : {"b", "c", "d"})
        arbol.enlazar("a", otro);
    arbol.escribir("e", std::string(1000, 'x'));
    const auto grupos = buscar();
    ASSERT_EQ(grupos.size(), 1U);
    EXPECT_EQ(grupos[0].copias.size(), 5U);
    EXPECT_EQ(grupos[0].desperdiciado(), 1000U);
    // Both files once, and the one that names the group once more.
    EXPECT_EQ(acceso.leidosDe(arbol.en("a")) + acceso.leidosDe(arbol.en("e")), 3000U);
}

TEST_F(Duplicados, withAMinimumOfZeroTheEmptyFilesFormAGroupWithoutWaste)
{
    for (int i = 0; i < 40; ++i)
        arbol.escribir(std::to_string(i), "");
    const auto grupos = buscar();
    ASSERT_EQ(grupos.size(), 1U);
    EXPECT_EQ(grupos[0].copias.size(), 40U);
    EXPECT_EQ(grupos[0].desperdiciado(), 0U);
    EXPECT_THAT(grupos[0].id, StartsWith("corto-0-e3b0c442"));
}

TEST_F(Duplicados, aFileThatVanishesAfterTheWalkJustDropsOut)
{
    for (const char *nombre : {"a", "b", "c"})
        arbol.escribir(nombre, "igual");
    const ListaArchivos archivos = arbol.archivos();
    std::filesystem::remove(arbol.en("b"));
    const auto grupos = buscarDuplicados(archivos, acceso, nullptr);
    ASSERT_EQ(grupos.size(), 1U);
    EXPECT_THAT(nombres(grupos[0]), UnorderedElementsAre("a", "c"));
}

TEST_F(Duplicados, aVanishedNameDoesNotTakeTheOthersOfItsFileAlong)
{
    arbol.escribir("a", "igual");
    arbol.enlazar("a", "b");
    arbol.escribir("c", "igual");
    const ListaArchivos archivos = arbol.archivos();
    const std::string primero = archivos.ruta(0) == arbol.en("c") ? archivos.ruta(1) : archivos.ruta(0);
    std::filesystem::remove(primero);
    const auto grupos = buscarDuplicados(archivos, acceso, nullptr);
    ASSERT_EQ(grupos.size(), 1U);
    EXPECT_EQ(grupos[0].copias.size(), 2U);
    for (const ArchivoHallado &copia : grupos[0].copias)
        EXPECT_NE(copia.ruta, primero);
}

TEST_F(Duplicados, aFileThatCannotBeOpenedJustDropsOut)
{
    for (const char *nombre : {"a", "b"})
        arbol.escribir(nombre, "igual");
    acceso.cerrar(arbol.en("a"));
    EXPECT_THAT(buscar(), IsEmpty());
}

TEST_F(Duplicados, aReadErrorCountsAsTheEndOfTheFile)
{
    arbol.escribir("a", std::string(200'000, 'x') + "uno");
    arbol.escribir("b", std::string(200'000, 'x') + "dos");
    for (const char *nombre : {"a", "b"})
        acceso.romperDesde(arbol.en(nombre), 150'000);
    const auto grupos = buscar();
    ASSERT_EQ(grupos.size(), 1U);
    EXPECT_EQ(grupos[0].copias.size(), 2U);
}

TEST_F(Duplicados, theOldestComesFirstAndEqualDatesKeepTheOrderOfTheWalk)
{
    for (const char *nombre : {"a", "b", "c", "d"}) {
        arbol.escribir(nombre, "igual");
        arbol.fechar(nombre, 1'600'000'000, 900);
    }
    arbol.fechar("c", 1'500'000'000);
    const ListaArchivos archivos = arbol.archivos();
    const auto grupos = buscarDuplicados(archivos, acceso, nullptr);
    ASSERT_EQ(grupos.size(), 1U);
    std::vector<std::string> esperados{arbol.en("c")};
    for (ListaArchivos::Numero i = 0; i < archivos.size(); ++i)
        if (archivos.ruta(i) != arbol.en("c")) esperados.push_back(archivos.ruta(i));
    std::vector<std::string> rutas;
    for (const ArchivoHallado &copia : grupos[0].copias)
        rutas.push_back(copia.ruta);
    EXPECT_EQ(rutas, esperados);
}

TEST_F(Duplicados, aSetBiggerThanWhatIsComparedAtOnceStaysOneGroup)
{
    for (int i = 0; i < 150; ++i)
        arbol.escribir(std::to_string(i), std::string(70'000, 'x'));
    const auto grupos = buscar();
    ASSERT_EQ(grupos.size(), 1U);
    EXPECT_EQ(grupos[0].copias.size(), 150U);
}

TEST_F(Duplicados, stoppedItGivesNothing)
{
    for (const char *nombre : {"a", "b"})
        arbol.escribir(nombre, std::string(200'000, 'x'));
    BanderaCancelacion bandera;
    bandera.cancelar();
    EXPECT_THAT(buscarDuplicados(arbol.archivos(), acceso, &bandera), IsEmpty());
}

TEST_F(Duplicados, stoppedInTheMiddleOfABigFileItGivesNothing)
{
    struct Detiene : AccesoConFallos
    {
        BanderaCancelacion bandera;
        ssize_t leer(int descriptor, void *destino, std::size_t bytes) override
        {
            if (::lseek(descriptor, 0, SEEK_CUR) > 1 << 20) bandera.cancelar();
            return AccesoConFallos::leer(descriptor, destino, bytes);
        }
    } detiene;
    for (const char *nombre : {"a", "b"})
        arbol.escribirHueco(nombre, 1ULL << 40);
    EXPECT_THAT(buscarDuplicados(arbol.archivos(), detiene, &detiene.bandera), IsEmpty());
}

TEST_F(Duplicados, readingDoesNotMakeAFileLookUsed)
{
    const timespec antiguo[2]{{1'500'000'000, 0}, {1'500'000'000, 0}};
    for (const char *nombre : {"a", "b"}) {
        arbol.escribir(nombre, "igual");
        ::utimensat(AT_FDCWD, arbol.en(nombre).c_str(), antiguo, 0);
    }
    ASSERT_EQ(buscar().size(), 1U);
    struct stat atributos = {};
    ::lstat(arbol.en("a").c_str(), &atributos);
    EXPECT_EQ(atributos.st_atim.tv_sec, 1'500'000'000);
}

} // namespace
} // namespace ovanta::pruebas
