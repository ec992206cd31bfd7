#include "ui/DuplicatesViewEstado.h"
#include "tests/ui/BancoHallazgos.h"

#include <gmock/gmock.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

class DuplicatesEstado : public BancoHallazgos
{
protected:
    void preparar()
    {
        analizar();
        estado = std::make_unique<DuplicatesViewEstado>();
    }
    QVariant dato(int fila, ModeloCopias::Rol rol) const
    {
        return estado->filas()->data(estado->filas()->index(fila), rol);
    }
    /// "a" is the original; "b" and "c" are two names of one other file.
    void tresConDosEnlaces() const
    {
        archivo("a", "igual", 30);
        archivo("b", "igual", 20);
        enlaceFisico("b", "c");
    }
    void moverTodo()
    {
        estado->pedirConfirmacion();
        estado->confirmar();
        esperarReposo();
    }

    std::unique_ptr<DuplicatesViewEstado> estado;
};

} // namespace

TEST_F(DuplicatesEstado, theFirstCopyOfAGroupCannotBeMarkedByAnyRoute)
{
    grupo("foto", 3, 1000);
    preparar();
    estado->marcar(0, true);
    EXPECT_FALSE(estado->hayMarcadas());
    estado->marcarTodasMenosLaOriginal(0);
    EXPECT_THAT(estado->marcas().marcadas(), UnorderedElementsAre(en("foto 2"), en("foto 3")));
    EXPECT_FALSE(dato(0, ModeloCopias::Marcable).toBool());
    EXPECT_TRUE(dato(0, ModeloCopias::MasAntigua).toBool());
}

TEST_F(DuplicatesEstado, aGroupInWhichAllAreHardLinksHasNothingToMark)
{
    archivo("a", "igual");
    enlaceFisico("a", "b");
    enlaceFisico("a", "c");
    preparar();
    ASSERT_EQ(estado->filas()->rowCount(), 3);
    estado->marcarTodasMenosLaOriginal(0);
    for (int fila = 0; fila < 3; ++fila) {
        estado->marcar(fila, true);
        EXPECT_FALSE(dato(fila, ModeloCopias::Marcable).toBool());
        EXPECT_TRUE(dato(fila, ModeloCopias::MismoArchivo).toBool());
    }
    EXPECT_FALSE(estado->hayMarcadas());
    EXPECT_EQ(dato(0, ModeloCopias::Extra).toString(), QStringLiteral("tamaño lógico extra: 0 GB"));
}

TEST_F(DuplicatesEstado, markingOneOfTwoHardLinksMarksBothAndCountsOnce)
{
    tresConDosEnlaces();
    preparar();
    estado->marcar(1, true);
    EXPECT_THAT(estado->marcas().marcadas(), UnorderedElementsAre(en("b"), en("c")));
    EXPECT_TRUE(dato(1, ModeloCopias::Marcada).toBool());
    EXPECT_TRUE(dato(2, ModeloCopias::Marcada).toBool());
    EXPECT_EQ(estado->marcas().bytes(), 5U);
    EXPECT_TRUE(estado->textoMarcadas().startsWith(QStringLiteral("2 copias · ")));
}

TEST_F(DuplicatesEstado, unmarkingThatPairTakesOneOffAndNeverGoesBelowZero)
{
    tresConDosEnlaces();
    preparar();
    estado->marcar(1, true);
    estado->marcar(2, false);
    EXPECT_EQ(estado->marcas().bytes(), 0U);
    estado->marcar(1, false);
    EXPECT_EQ(estado->marcas().bytes(), 0U);
    EXPECT_FALSE(estado->hayMarcadas());
}

TEST_F(DuplicatesEstado, pressingMarkAllTwiceCountsTwiceButMarksOnce)
{
    grupo("foto", 3, 1'000'000);
    preparar();
    estado->marcarTodasMenosLaOriginal(2);
    estado->marcarTodasMenosLaOriginal(0);
    EXPECT_EQ(estado->textoMarcadas(), QStringLiteral("2 copias · 4 MB"));
    EXPECT_EQ(estado->tituloConfirmacion(), QStringLiteral("¿Mover 2 copias?"));
}

TEST_F(DuplicatesEstado, afterUnmarkingAllTheFigureIsZero)
{
    grupo("foto", 3, 1000);
    preparar();
    estado->marcarTodasMenosLaOriginal(0);
    estado->desmarcarTodo();
    EXPECT_EQ(estado->textoMarcadas(), QStringLiteral("0 copias · 0 GB"));
    EXPECT_FALSE(estado->puedeMover());
}

TEST_F(DuplicatesEstado, aNewAnalysisClearsTheMarksAndTheQuestion)
{
    grupo("foto", 2, 1000);
    preparar();
    for (const char *nuevo : {"", "vídeo"}) {
        estado->marcar(1, true);
        estado->pedirConfirmacion();
        ASSERT_TRUE(estado->confirmando());
        if (*nuevo) grupo(nuevo, 2, 3000);
        analizar();
        EXPECT_FALSE(estado->hayMarcadas());
        EXPECT_EQ(estado->marcas().bytes(), 0U);
        EXPECT_FALSE(estado->confirmando());
    }
}

TEST_F(DuplicatesEstado, aMarkedCopyThatBecameTheOriginalIsNoLongerMarked)
{
    grupo("foto", 3, 1000);
    preparar();
    estado->marcarTodasMenosLaOriginal(0);
    std::filesystem::remove(en("foto 1"));
    analizar();
    EXPECT_EQ(dato(0, ModeloCopias::Nombre).toString(), QStringLiteral("foto 2"));
    EXPECT_FALSE(dato(0, ModeloCopias::Marcada).toBool());
    EXPECT_FALSE(estado->hayMarcadas());
}

TEST_F(DuplicatesEstado, aStoppedAnalysisKeepsTheMarks)
{
    grupo("foto", 2, 1000);
    preparar();
    estado->marcar(1, true);
    plataforma.m_accesoArchivos.alMirarCarpeta = [this] {
        QMetaObject::invokeMethod(
            &app().scanner(), [this] { estado->detener(); }, Qt::BlockingQueuedConnection);
    };
    analizar();
    EXPECT_TRUE(estado->hayMarcadas());
}

TEST_F(DuplicatesEstado, itsTextsFollowTheAnalysis)
{
    preparar();
    EXPECT_EQ(estado->tituloVacio(), QStringLiteral("Busca copias idénticas"));
    EXPECT_EQ(estado->mensajeVacio(),
              QStringLiteral("Analiza tus carpetas para comparar el contenido real de los archivos."));
    EXPECT_EQ(estado->simboloVacio(), QStringLiteral("doc.on.doc"));
    EXPECT_EQ(estado->textoAnalizar(), QStringLiteral("Analizar ahora"));
    EXPECT_EQ(estado->valor(), QString());
    archivo("solo", "x");
    analizar();
    EXPECT_EQ(estado->tituloVacio(), QStringLiteral("Todo está en orden"));
    EXPECT_EQ(estado->mensajeVacio(),
              QStringLiteral("No encontramos duplicados entre los 1 archivos revisados."));
    EXPECT_EQ(estado->simboloVacio(), QStringLiteral("checkmark.circle"));
    EXPECT_EQ(estado->textoAnalizar(), QStringLiteral("Analizar de nuevo"));
    grupo("foto", 3, 1'000'000);
    analizar();
    EXPECT_EQ(estado->valor(), QStringLiteral("1 grupos · 2 MB de tamaño lógico extra"));
    EXPECT_EQ(dato(0, ModeloCopias::Cabeza).toString(), QStringLiteral("3 copias de 1 MB"));
    EXPECT_EQ(dato(0, ModeloCopias::Extra).toString(), QStringLiteral("tamaño lógico extra: 2 MB"));
    EXPECT_EQ(dato(0, ModeloCopias::Titulo).toString(), QStringLiteral("foto 1"));
}

TEST_F(DuplicatesEstado, movesWhatIsMarkedMeasuresTheDiskAndLooksAgain)
{
    grupo("foto", 3, 1'000'000);
    preparar();
    estado->marcarTodasMenosLaOriginal(0);
    const int lecturas = plataforma.m_volumen.lecturas;
    moverTodo();
    EXPECT_THAT(plataforma.m_papelera.recicladas, ElementsAre(en("foto 2"), en("foto 3")));
    EXPECT_TRUE(estado->resumen().startsWith(QStringLiteral("Movidas 2 copias · ")));
    EXPECT_THAT(estado->fallos(), IsEmpty());
    EXPECT_EQ(plataforma.m_volumen.lecturas, lecturas + 1);
    EXPECT_TRUE(estado->vacio());
    EXPECT_FALSE(estado->hayMarcadas());
    EXPECT_EQ(app().limpiador().historial().front().regla, "duplicados");
}

TEST_F(DuplicatesEstado, aCopyThatChangedBehindItsBackStaysWithItsLine)
{
    grupo("foto", 3, 1000);
    preparar();
    estado->marcarTodasMenosLaOriginal(0);
    archivo("foto 2", "otra cosa");
    moverTodo();
    EXPECT_THAT(plataforma.m_papelera.recicladas, ElementsAre(en("foto 3")));
    ASSERT_EQ(estado->fallos().size(), 1);
    EXPECT_TRUE(estado->fallos().front().contains(QStringLiteral("foto 2")));
    EXPECT_TRUE(std::filesystem::exists(en("foto 2")));
}

TEST_F(DuplicatesEstado, everyFailureOfAMoveIsShown)
{
    grupo("foto", 12, 1000);
    preparar();
    plataforma.m_papelera.alReciclar = [](const std::string &) { return std::string{"el disco está lleno"}; };
    estado->marcarTodasMenosLaOriginal(0);
    moverTodo();
    EXPECT_EQ(estado->resumen(), QStringLiteral("Movidas 0 copias · 0 GB"));
    EXPECT_EQ(estado->fallos().size(), 11);
    EXPECT_TRUE(estado->fallos().back().contains(QStringLiteral("el disco está lleno")));
}

TEST_F(DuplicatesEstado, aNameThatIsNotUtf8IsMarkedAndMovedByteByByte)
{
    archivo("a", "igual", 30);
    archivo("ma\xf1"
            "ana \xff",
            "igual", 20);
    preparar();
    EXPECT_TRUE(dato(1, ModeloCopias::Nombre).toString().contains(QChar(QChar::ReplacementCharacter)));
    EXPECT_EQ(estado->filas()->filaDe(estado->filas()->claveDe(1)), 1);
    estado->marcar(1, true);
    moverTodo();
    EXPECT_THAT(plataforma.m_papelera.recicladas, ElementsAre(en("ma\xf1"
                                                                 "ana \xff")));
}

TEST_F(DuplicatesEstado, aRowThatIsNotThereDoesNothing)
{
    grupo("foto", 2, 1000);
    preparar();
    for (const int fila : {-1, 2, 1'000'000}) {
        estado->marcar(fila, true);
        estado->marcarTodasMenosLaOriginal(fila);
        estado->mostrarEnGestor(fila);
    }
    EXPECT_FALSE(estado->hayMarcadas());
    EXPECT_THAT(plataforma.m_gestor.mostradas, IsEmpty());
    estado->mostrarEnGestor(1);
    EXPECT_THAT(plataforma.m_gestor.mostradas, ElementsAre(en("foto 2")));
}

TEST_F(DuplicatesEstado, tellsWhatReallyLeavesTheDisk)
{
    grupo("foto", 2, 4096);
    std::filesystem::resize_file(en("foto 1"), 1'000'000);
    std::filesystem::resize_file(en("foto 2"), 1'000'000);
    preparar();
    estado->marcar(1, true);
    esperar([&] { return !estado->textoReal().isEmpty(); });
    EXPECT_TRUE(estado->textoReal().startsWith(QStringLiteral("En el disco ocupan ")));
    estado->desmarcarTodo();
    EXPECT_EQ(estado->textoReal(), QString());
}

TEST_F(DuplicatesEstado, theScreenMayGoDuringAMoveThatGoesOn)
{
    grupo("foto", 3, 1000);
    preparar();
    estado->marcarTodasMenosLaOriginal(0);
    estado->pedirConfirmacion();
    estado->confirmar();
    estado.reset();
    esperarReposo();
    EXPECT_EQ(plataforma.m_papelera.recicladas.size(), 2U);
    EXPECT_TRUE(app().scanner().duplicados()->empty());
}

TEST_F(DuplicatesEstado, theModelKeepsItsListUntilItIsToldOfAnother)
{
    grupo("foto", 3, 1000);
    preparar();
    ModeloCopias suya{estado->marcas()};
    suya.publicar(app().scanner().duplicados());
    std::filesystem::remove(en("foto 3"));
    std::filesystem::remove(en("foto 2"));
    analizar();
    EXPECT_TRUE(app().scanner().duplicados()->empty());
    ASSERT_EQ(suya.rowCount(), 3);
    EXPECT_EQ(suya.data(suya.index(2), ModeloCopias::Nombre).toString(), QStringLiteral("foto 3"));
}
