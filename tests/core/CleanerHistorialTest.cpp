#include "core/RegistroPrevio.h"
#include "tests/DiscoLleno.h"
#include "tests/core/CleanerBanco.h"

#include <sys/stat.h>

using namespace ovanta;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class CleanerHistorial : public pruebas::BancoCleaner
{
protected:
    static mode_t permisos(const std::string &ruta)
    {
        struct stat estado = {};
        EXPECT_EQ(::lstat(ruta.c_str(), &estado), 0);
        return estado.st_mode & 07777;
    }
    ResultadoLimpieza moverUno(const std::string &nombre)
    {
        return limpiarRutas({casa.archivo(casa.en(nombre))});
    }
};

} // namespace

TEST_F(CleanerHistorial, theFileAndItsFolderAreTheUsersAlone)
{
    moverUno("a");
    EXPECT_EQ(permisos(archivo()), 0600u);
    EXPECT_EQ(permisos(carpetaDatos()), 0700u);
    EXPECT_EQ(permisos(casa.en("Library")), 0700u);
}

TEST_F(CleanerHistorial, aBatchComesBeforeWhatWasThereAndTheOldestFallOff)
{
    escribirHistorial(codificarHistorial(movimientos(500)));
    const std::vector<std::string> nuevas{casa.archivo(casa.en("a")), casa.archivo(casa.en("b")),
                                          casa.archivo(casa.en("c"))};
    limpiarRutas(nuevas);

    auto esperadas = nuevas;
    for (const auto &vieja : rutas(movimientos(497)))
        esperadas.push_back(vieja);
    EXPECT_EQ(rutas(cleaner().historial()), esperadas);
    EXPECT_EQ(rutas(guardado()), esperadas);
}

TEST_F(CleanerHistorial, whatABatchMovedIsThereAtTheNextStart)
{
    moverUno("a");
    const auto antes = cleaner().historial();
    cerrar();
    EXPECT_EQ(cleaner().historial(), antes);
}

TEST_F(CleanerHistorial, whatAToolDeletedByItselfIsRecordedWithoutABatch)
{
    moverUno("a");
    int cambios = 0;
    QObject::connect(&cleaner(), &Cleaner::trabajandoChanged, &cleaner(), [&] { ++cambios; });
    QObject::connect(&cleaner(), &Cleaner::progresoChanged, &cleaner(), [&] { ++cambios; });
    cleaner().registrarAccion("Imágenes de Docker", 5'000'000, "desarrollo (permanente)");
    esperarEscritura();

    EXPECT_EQ(cambios, 0);
    ASSERT_THAT(cleaner().historial(), SizeIs(2));
    EXPECT_EQ(cleaner().historial()[0].ruta, "Imágenes de Docker");
    EXPECT_EQ(cleaner().historial()[0].bytes, 5'000'000u);
    EXPECT_EQ(cleaner().historial()[0].regla, "desarrollo (permanente)");
    EXPECT_EQ(guardado(), cleaner().historial());
}

TEST_F(CleanerHistorial, manyActionsInARowLeaveTheLastListOnDisk)
{
    for (int i = 0; i < 600; ++i)
        cleaner().registrarAccion("acción " + std::to_string(i), 1, "desarrollo (permanente)");
    esperarEscritura();
    EXPECT_THAT(cleaner().historial(), SizeIs(500));
    EXPECT_EQ(cleaner().historial()[0].ruta, "acción 599");
    EXPECT_EQ(guardado(), cleaner().historial());
}

TEST_F(CleanerHistorial, aFileThatIsNoHistoryReadsAsEmptyAndTheNextSaveReplacesIt)
{
    const std::vector<std::string> malos{
        "",
        "[",
        "null",
        "{}",
        R"([{"id":"00000000-0000-4000-8000-000000000000","ruta":"/a","bytes":1,"fecha":"2026-01-01T00:00:00Z"}])",
        "[\"\xFF\"]",
        std::string(100'000, '['),
    };
    for (const auto &malo : malos) {
        cerrar();
        escribirHistorial(malo);
        EXPECT_THAT(cleaner().historial(), IsEmpty());
        moverUno("a");
        EXPECT_THAT(guardado(), SizeIs(1));
    }
}

TEST_F(CleanerHistorial, aHugeFileReadsAsEmpty)
{
    escribirHistorial("");
    std::filesystem::resize_file(archivo(), 100'000'000);
    EXPECT_THAT(cleaner().historial(), IsEmpty());
}

TEST_F(CleanerHistorial, aFifoInPlaceOfTheFileNeitherHangsNorStays)
{
    casa.carpeta(carpetaDatos());
    ASSERT_EQ(::mkfifo(archivo().c_str(), 0600), 0);
    EXPECT_THAT(cleaner().historial(), IsEmpty());
    moverUno("a");
    EXPECT_THAT(guardado(), SizeIs(1));
}

TEST_F(CleanerHistorial, aLinkInPlaceOfTheFileIsReadAndReplacedAndItsTargetStays)
{
    const auto destino = casa.archivo(casa.en("mi-historial.json"));
    std::ofstream(destino) << codificarHistorial(movimientos(2));
    casa.enlace(archivo(), destino);
    moverUno("a");

    EXPECT_THAT(guardado(), SizeIs(3));
    EXPECT_FALSE(std::filesystem::is_symlink(archivo()));
    EXPECT_THAT(cargarHistorial(destino), SizeIs(2));
}

TEST_F(CleanerHistorial, aFolderInPlaceOfTheFileLeavesTheListInMemory)
{
    casa.carpeta(archivo() + "/dentro");
    EXPECT_EQ(moverUno("a").movidos, 1);
    EXPECT_THAT(cleaner().historial(), SizeIs(1));
    EXPECT_TRUE(hay(archivo() + "/dentro"));
}

TEST_F(CleanerHistorial, whatCouldNotBeWrittenIsFoundAtTheNextStart)
{
    casa.carpeta(archivo() + "/dentro");
    moverUno("a");
    plataforma.m_reloj.avanzar(std::chrono::seconds{1});
    moverUno("b");
    const auto antes = rutas(cleaner().historial());
    cerrar();
    std::filesystem::remove_all(archivo());
    EXPECT_EQ(rutas(cleaner().historial()), antes);
    esperarEscritura();
    EXPECT_EQ(rutas(guardado()), antes);
    EXPECT_THAT(registrosPrevios(carpetaDatos()), IsEmpty());
}

TEST_F(CleanerHistorial, onAFullDiskTheItemsStillMoveAndTheOldFileStays)
{
    escribirHistorial(codificarHistorial(movimientos(3)));
    const auto a = casa.archivo(casa.en("a"));
    const auto b = casa.archivo(casa.en("b"));
    cleaner();
    {
        const pruebas::DiscoLleno lleno{100};
        EXPECT_EQ(limpiarRutas({a, b}), (ResultadoLimpieza{2, 8192, {}}));
    }
    EXPECT_THAT(cleaner().historial(), SizeIs(5));
    EXPECT_EQ(guardado(), movimientos(3));
    limpiarRutas({});
    EXPECT_EQ(guardado(), cleaner().historial()) << "the next save has room again";
}

TEST_F(CleanerHistorial, withoutADataFolderTheItemStillMovesAndTheListStaysInMemory)
{
    casa.archivo(casa.en("Library"));
    const auto a = casa.archivo(casa.en("a"));
    EXPECT_EQ(limpiarRutas({a}), (ResultadoLimpieza{1, 4096, {}}));
    EXPECT_THAT(rutas(cleaner().historial()), ElementsAre(a));
    EXPECT_FALSE(hay(a));
}

TEST_F(CleanerHistorial, aBatchThatDiedIsTakenInAtTheNextStartBeforeWhatWasThere)
{
    escribirHistorial(codificarHistorial(movimientos(3)));
    {
        RegistroPrevio muerto{carpetaDatos()};
        muerto.intento(movimiento(10), {});
        muerto.hecho(movimiento(10));
        muerto.intento(movimiento(11), {});
    }
    plataforma.m_papelera.recicladas = {movimiento(11).ruta};
    EXPECT_THAT(rutas(cleaner().historial()),
                ElementsAre("/casa/10", "/casa/11", "/casa/0", "/casa/1", "/casa/2"));
    esperarEscritura();
    EXPECT_EQ(guardado(), cleaner().historial());
    EXPECT_THAT(registrosPrevios(carpetaDatos()), IsEmpty());
}

TEST_F(CleanerHistorial, aRecordOfWhatTheHistoryAlreadyHoldsAddsNothing)
{
    escribirHistorial(codificarHistorial(movimientos(3)));
    {
        RegistroPrevio escrito{carpetaDatos()};
        escrito.intento(movimiento(1), {});
        escrito.hecho(movimiento(1));
    }
    EXPECT_EQ(cleaner().historial(), movimientos(3));
    esperarEscritura();
    EXPECT_THAT(registrosPrevios(carpetaDatos()), IsEmpty());
}
