#include "analysis/Clasificar.h"
#include "analysis/Duplicados.h"
#include "core/Descriptor.h"
#include "tests/analysis/AccesoConFallos.h"
#include "tests/analysis/ArbolDeArchivos.h"

#include <cstdlib>
#include <gmock/gmock.h>
#include <sys/sysmacros.h>

namespace ovanta::pruebas {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// How many: few in every run, all of them where OVANTA_ESCALA is set.
int escala(int pocos, int todos)
{
    return std::getenv("OVANTA_ESCALA") ? todos : pocos;
}

void crearVacios(const std::string &carpeta, int cuantos)
{
    std::filesystem::create_directories(carpeta);
    const Descriptor abierta{::open(carpeta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    for (int i = 0; i < cuantos; ++i)
        const Descriptor nuevo{
            ::openat(abierta.numero(), std::to_string(i).c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600)};
}

TEST(Escala, aFolderWithAMillionEntriesIsListedWhole)
{
    const int cuantos = escala(3'000, 1'000'000);
    const ArbolDeArchivos arbol;
    crearVacios(arbol.en("llena"), cuantos);
    EXPECT_EQ(arbol.archivos().size(), static_cast<std::size_t>(cuantos));
    EXPECT_TRUE(arbol.archivos(1).empty()) << "all too small";
}

TEST(Escala, aHundredThousandEmptyFilesAreOneGroupWithoutWaste)
{
    const int cuantos = escala(1'000, 100'000);
    const ArbolDeArchivos arbol;
    crearVacios(arbol.en("vacios"), cuantos);
    AccesoConFallos acceso;
    const auto grupos = buscarDuplicados(arbol.archivos(), acceso, nullptr);
    ASSERT_THAT(grupos, SizeIs(1));
    EXPECT_EQ(grupos[0].copias.size(), static_cast<std::size_t>(cuantos));
    EXPECT_EQ(grupos[0].desperdiciado(), 0U);
}

TEST(Escala, aTebibyteOfHolesIsListedAndNotReadWhereNothingHasItsSize)
{
    const ArbolDeArchivos arbol;
    arbol.escribirHueco("imagen de disco", 1ULL << 40);
    arbol.escribirHueco("otra", (1ULL << 40) + 1);
    AccesoConFallos acceso;
    const ListaArchivos archivos = arbol.archivos();
    EXPECT_THAT(buscarDuplicados(archivos, acceso, nullptr), IsEmpty());
    EXPECT_EQ(acceso.leidosDe(arbol.en("imagen de disco")), 0U);
    const Clasificados clasificados = clasificar(archivos, {}, {{arbol.raiz()}, Fecha{}, 90});
    ASSERT_THAT(clasificados.grandes, SizeIs(2));
    EXPECT_EQ(clasificados.grandes[1].bytes, 1ULL << 40);
}

TEST(Escala, twoTebibytesThatDifferInTheirHeadCostOnlyThat)
{
    const ArbolDeArchivos arbol;
    for (const char *nombre : {"a", "b"}) {
        arbol.escribir(nombre, nombre);
        std::filesystem::resize_file(arbol.en(nombre), 1ULL << 40);
    }
    AccesoConFallos acceso;
    EXPECT_THAT(buscarDuplicados(arbol.archivos(), acceso, nullptr), IsEmpty());
    EXPECT_LE(acceso.leidosDe(arbol.en("a")), 65536U);
}

TEST(Escala, devicesAreNoFilesAndNobodyOpensThem)
{
    const ArbolDeArchivos arbol;
    for (const mode_t tipo : {S_IFCHR, S_IFBLK})
        if (::mknod(arbol.en(std::to_string(tipo)).c_str(), tipo | 0600, ::makedev(1, 3)) != 0)
            GTEST_SKIP() << "only root makes devices";
    arbol.escribir("archivo", "uno");
    EXPECT_THAT(relativas(arbol.archivos(), arbol.raiz()), ElementsAre("archivo"));
}

TEST(Escala, aFileThatBecamePipeOrFolderAfterTheWalkDropsOutAndHoldsNothingUp)
{
    const ArbolDeArchivos arbol;
    for (const char *nombre : {"a", "b", "c", "d", "e"})
        arbol.escribir(nombre, "igual");
    const ListaArchivos archivos = arbol.archivos();
    for (const char *nombre : {"a", "b", "c"})
        std::filesystem::remove(arbol.en(nombre));
    for (const char *nombre : {"a", "b"})
        ASSERT_EQ(::mkfifo(arbol.en(nombre).c_str(), 0600), 0);
    std::filesystem::create_directory(arbol.en("c"));
    AccesoConFallos acceso;
    const auto grupos = buscarDuplicados(archivos, acceso, nullptr);
    ASSERT_THAT(grupos, SizeIs(1));
    EXPECT_THAT(grupos[0].copias, SizeIs(2));
}

} // namespace
} // namespace ovanta::pruebas
