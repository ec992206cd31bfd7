#include "ui/BigFilesViewEstado.h"
#include "tests/ui/BancoHallazgos.h"

#include <gmock/gmock.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

enum Pestana { Grandes, Carpetas, DescargasViejas, Capturas, Instaladores };

class BigFilesEstado : public BancoHallazgos
{
protected:
    void preparar()
    {
        analizar();
        estado = std::make_unique<BigFilesViewEstado>();
    }
    QString dato(int fila, ModeloHallados::Rol rol) const
    {
        return estado->filas()->data(estado->filas()->index(fila), rol).toString();
    }
    bool marcada(int fila) const
    {
        return estado->filas()->data(estado->filas()->index(fila), ModeloHallados::Marcada).toBool();
    }
    void moverTodo()
    {
        estado->pedirConfirmacion();
        estado->confirmar();
        esperarReposo();
    }

    std::unique_ptr<BigFilesViewEstado> estado;
};

} // namespace

TEST_F(BigFilesEstado, itsTabsTellTheLengthOfTheirLists)
{
    archivo("Captura 1.png", std::string(3'000'000, 'a'), 200);
    archivo("Editor.dmg", std::string(2'000'000, 'b'), 2);
    pesadas = {{casa.en("p/node_modules"), 4000}};
    preparar();
    EXPECT_THAT(estado->pestanas(),
                ElementsAre(QStringLiteral("Archivos grandes (2)"), QStringLiteral("Dependencias (1)"),
                            QStringLiteral("Descargas viejas (1)"), QStringLiteral("Capturas (1)"),
                            QStringLiteral("Instaladores (1)")));
    EXPECT_EQ(dato(0, ModeloHallados::Nombre), QStringLiteral("Captura 1.png"));
    EXPECT_EQ(dato(0, ModeloHallados::Lugar), mostrar(casa.en("Downloads")));
    EXPECT_EQ(dato(0, ModeloHallados::Tamano), QStringLiteral("3 MB"));
    EXPECT_EQ(dato(1, ModeloHallados::Modificado), QStringLiteral("19 nov 2026"));
    estado->fijarPestana(Carpetas);
    EXPECT_TRUE(estado->deCarpetas());
    EXPECT_EQ(dato(0, ModeloHallados::Nombre), QStringLiteral("node_modules"));
    EXPECT_EQ(dato(0, ModeloHallados::Lugar), mostrar(casa.en("p/node_modules")));
    EXPECT_EQ(dato(0, ModeloHallados::Tamano), QStringLiteral("4,1 MB"));
}

TEST_F(BigFilesEstado, aNewAnalysisDoesNotClearTheMarks)
{
    archivo("a.bin", "aaaa");
    preparar();
    estado->marcar(0, true);
    archivo("b.bin", "bbbbbbbb");
    analizar();
    EXPECT_TRUE(estado->marcadas().contains(en("a.bin")));
    EXPECT_FALSE(marcada(0));
    EXPECT_TRUE(marcada(1));
    EXPECT_EQ(estado->bytesMarcados(), 4U);
}

TEST_F(BigFilesEstado, aMarkWhoseFileIsGoneStaysAndWeighsNothing)
{
    archivo("a.bin", std::string(1'000'000, 'a'));
    archivo("b.bin", std::string(2'000'000, 'b'));
    preparar();
    estado->marcar(0, true);
    estado->marcar(1, true);
    std::filesystem::remove(en("b.bin"));
    analizar();
    EXPECT_EQ(estado->textoMarcados(), QStringLiteral("2 marcados · 1 MB"));
    EXPECT_EQ(estado->tituloConfirmacion(), QStringLiteral("¿Mover 2 elementos?"));
    EXPECT_EQ(estado->textoConfirmar(), QStringLiteral("Mover y liberar 1 MB"));
    moverTodo();
    EXPECT_THAT(plataforma.m_papelera.recicladas, ElementsAre(en("a.bin")));
    EXPECT_TRUE(estado->resumen().startsWith(QStringLiteral("Movidos 1 · ")));
    EXPECT_EQ(estado->fallos().size(), 1);
    EXPECT_EQ(estado->textoMarcados(), QString());
}

TEST_F(BigFilesEstado, aStageThatPublishesLeavesTheMarksOfTheTabsThatWait)
{
    archivo("Captura 1.png", std::string(1'000'000, 'a'));
    preparar();
    estado->fijarPestana(Capturas);
    estado->marcar(0, true);
    std::filesystem::remove(en("Captura 1.png"));
    std::uint64_t alPublicar = 0;
    const auto unaVez = QObject::connect(&app().scanner(), &Scanner::duplicadosChanged,
                                         [&] { alPublicar = estado->bytesMarcados(); });
    analizar();
    QObject::disconnect(unaVez);
    EXPECT_EQ(alPublicar, 1'000'000U) << "the old list of captures still holds it";
    EXPECT_EQ(estado->bytesMarcados(), 0U);
    EXPECT_EQ(estado->textoMarcados(), QStringLiteral("1 marcados · 0 GB"));
}

TEST_F(BigFilesEstado, aFileThatStandsInTwoTabsIsMarkedInBothAndCountsOnce)
{
    archivo("Captura 1.png", std::string(1'000'000, 'a'));
    preparar();
    estado->marcar(0, true);
    EXPECT_EQ(estado->textoMarcados(), QStringLiteral("1 marcados · 1 MB"));
    EXPECT_EQ(estado->bytesMarcados(), 1'000'000U);
    estado->fijarPestana(Capturas);
    EXPECT_TRUE(marcada(0));
    estado->marcar(0, false);
    EXPECT_EQ(estado->textoMarcados(), QString());
    estado->fijarPestana(Grandes);
    EXPECT_FALSE(marcada(0));
}

TEST_F(BigFilesEstado, filesAndFoldersAddUp)
{
    archivo("a.bin", std::string(1'000'000, 'a'));
    pesadas = {{casa.en("p/target"), 2000}};
    preparar();
    estado->marcar(0, true);
    estado->fijarPestana(Carpetas);
    estado->marcar(0, true);
    EXPECT_EQ(estado->bytesMarcados(), 3'048'000U);
    EXPECT_EQ(estado->tituloConfirmacion(), QStringLiteral("¿Mover 2 elementos?"));
    EXPECT_EQ(estado->textoConfirmar(), QStringLiteral("Mover y liberar 3 MB"));
}

TEST_F(BigFilesEstado, withNoOldDownloadsTheTextTellsTheDays)
{
    archivo("a.bin", "x");
    preparar();
    estado->fijarPestana(DescargasViejas);
    ASSERT_EQ(app().scanner().diasDescargas(), 90);
    EXPECT_EQ(estado->mensajeVacio(), QStringLiteral("Nada en Descargas con más de 90 días."));
    app().scanner().fijarDiasDescargas(30);
    EXPECT_EQ(estado->mensajeVacio(), QStringLiteral("Nada en Descargas con más de 30 días."));
}

TEST_F(BigFilesEstado, eachEmptyTabHasItsTextBeforeAndAfterAnAnalysis)
{
    preparar();
    const QString deArchivos = QStringLiteral("Analiza tus carpetas para ordenar los archivos por tamaño.");
    const QString deCarpetas =
        QStringLiteral("Analiza tu Mac para encontrar node_modules, entornos y builds regenerables.");
    for (int pestana = 0; pestana < 5; ++pestana) {
        estado->fijarPestana(pestana);
        EXPECT_EQ(estado->tituloVacio(), pestana == Carpetas ? QStringLiteral("Busca dependencias pesadas")
                                                             : QStringLiteral("Encuentra lo que ocupa más"));
        EXPECT_EQ(estado->mensajeVacio(), pestana == Carpetas ? deCarpetas : deArchivos);
    }
    archivo("a", "x");
    analizar();
    const QStringList despues{QStringLiteral("Sin resultados todavía."),
                              QStringLiteral("No se han encontrado carpetas de dependencias."),
                              QStringLiteral("Nada en Descargas con más de 90 días."),
                              QStringLiteral("No se reconocieron capturas en las carpetas analizadas."),
                              QStringLiteral("No se encontraron paquetes de instalación antiguos.")};
    for (int pestana = 0; pestana < 5; ++pestana) {
        estado->fijarPestana(pestana);
        EXPECT_EQ(estado->tituloVacio(), pestana == Carpetas ? QStringLiteral("Sin dependencias pesadas")
                                                             : QStringLiteral("Sin resultados"));
        EXPECT_EQ(estado->mensajeVacio(), despues[pestana]);
    }
}

TEST_F(BigFilesEstado, movesWhatIsMarkedInAllTabs)
{
    archivo("a.bin", std::string(1'000'000, 'a'));
    const std::string carpeta = casa.en("p/node_modules");
    casa.archivo(carpeta + "/indice.js");
    pesadas = {{carpeta, 4000}};
    preparar();
    estado->marcar(0, true);
    estado->fijarPestana(Carpetas);
    estado->marcar(0, true);
    pesadas.clear();
    moverTodo();
    EXPECT_THAT(plataforma.m_papelera.recicladas, testing::UnorderedElementsAre(en("a.bin"), carpeta));
    EXPECT_TRUE(estado->resumen().startsWith(QStringLiteral("Movidos 2 · ")));
    EXPECT_THAT(estado->marcadas(), IsEmpty());
    EXPECT_FALSE(estado->puedeMover());
    EXPECT_EQ(app().limpiador().historial().front().regla, "pesados");
}

TEST_F(BigFilesEstado, aCopyThatAnotherMoveCountsOnStays)
{
    grupo("foto", 2, 1000);
    preparar();
    GuardianDeCopias::Lote lote{app().scanner().guardian(), *app().scanner().duplicados(), {en("foto 2")}};
    ASSERT_TRUE(lote.permitir(en("foto 2")));
    for (int fila = 0; fila < 2; ++fila)
        estado->marcar(fila, *estado->filas()->rutaDe(fila) == en("foto 1"));
    moverTodo();
    EXPECT_THAT(plataforma.m_papelera.recicladas, IsEmpty());
    EXPECT_EQ(estado->resumen(), QStringLiteral("Movidos 0 · 0 GB"));
    EXPECT_EQ(estado->fallos().size(), 1);
}

TEST_F(BigFilesEstado, aTabOrRowThatIsNotThereDoesNothing)
{
    archivo("a.bin", "aaaa");
    preparar();
    estado->fijarPestana(-1);
    estado->fijarPestana(5);
    EXPECT_EQ(estado->pestana(), 0);
    for (const int fila : {-1, 1, 1'000'000}) {
        estado->marcar(fila, true);
        estado->mostrarEnGestor(fila);
    }
    EXPECT_THAT(estado->marcadas(), IsEmpty());
    EXPECT_THAT(plataforma.m_gestor.mostradas, IsEmpty());
    estado->pedirConfirmacion();
    EXPECT_FALSE(estado->confirmando());
}

TEST_F(BigFilesEstado, aNameThatIsNotUtf8IsMarkedAndMovedByteByByte)
{
    archivo("\xff\xfe.iso", "aaaa");
    preparar();
    estado->fijarPestana(Instaladores);
    estado->marcar(0, true);
    EXPECT_EQ(estado->filas()->filaDe(estado->filas()->claveDe(0)), 0);
    moverTodo();
    EXPECT_THAT(plataforma.m_papelera.recicladas, ElementsAre(en("\xff\xfe.iso")));
}
