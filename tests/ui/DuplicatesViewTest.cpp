#include "tests/ui/BancoHallazgos.h"
#include "ui/ModeloConClaves.h"

#include <QTest>
#include <condition_variable>
#include <gmock/gmock.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class DuplicatesView : public BancoHallazgos
{
protected:
    void abrirConTres()
    {
        grupo("foto", 3, 1'000'000);
        analizar();
        abrir(Seccion::duplicados);
    }
    QQuickItem *lista() const { return pieza(QAccessible::List, QStringLiteral("Duplicados")); }
    /// The key of the topmost row that shows, and how far it is scrolled out.
    std::pair<QString, qreal> lugar() const
    {
        int fila = -1;
        QMetaObject::invokeMethod(lista(), "indexAt", Q_RETURN_ARG(int, fila), Q_ARG(qreal, 0.0),
                                  Q_ARG(qreal, lista()->property("contentY").toReal()));
        QQuickItem *arriba = nullptr;
        QMetaObject::invokeMethod(lista(), "itemAtIndex", Q_RETURN_ARG(QQuickItem *, arriba),
                                  Q_ARG(int, fila));
        if (!arriba) return {};
        const auto *filas = lista()->property("filas").value<ModeloConClaves *>();
        return {filas->claveDe(fila), lista()->property("contentY").toReal() - arriba->y()};
    }
    int filasConstruidas() const
    {
        return static_cast<int>(lista()->property("contentItem").value<QQuickItem *>()->childItems().size());
    }
    void confirmarConTeclado()
    {
        esperar([&] { return seVe(QStringLiteral("Cancelar")); });
        tecla(Qt::Key_Tab);
        tecla(Qt::Key_Return);
    }
};

} // namespace

TEST_F(DuplicatesView, beforeAnAnalysisItOffersOne)
{
    abrir(Seccion::duplicados);
    for (const char *texto :
         {"Duplicados",
          "Mismo contenido byte a byte. Los enlaces físicos se descuentan; en clones APFS el tamaño extra es "
          "lógico y no equivale al espacio físico que recuperarás.",
          "Busca copias idénticas", "Analiza tus carpetas para comparar el contenido real de los archivos.",
          "Analizar ahora"})
        EXPECT_TRUE(seVe(QString::fromUtf8(texto))) << texto;
    EXPECT_FALSE(seVe(QStringLiteral("Mover a la Papelera")));
    grupo("foto", 2, 1'000'000);
    pulsarBoton(QStringLiteral("Analizar ahora"));
    esperar([&] { return seVe(QStringLiteral("1 grupos · 1 MB de tamaño lógico extra")); });
    EXPECT_TRUE(seVe(QStringLiteral("Analizar de nuevo")));
}

TEST_F(DuplicatesView, aCardShowsItsGroup)
{
    archivo("a.bin", std::string(1'000'000, 'x'), 30);
    archivo("b.bin", std::string(1'000'000, 'x'), 20);
    enlaceFisico("b.bin", "c.bin");
    analizar();
    abrir(Seccion::duplicados);
    for (const char *texto :
         {"3 copias de 1 MB", "tamaño lógico extra: 1 MB", "Marcar todas menos la original", "a.bin", "b.bin",
          "c.bin", "más antigua", "mismo archivo físico", "Finder"})
        EXPECT_TRUE(seVe(QString::fromUtf8(texto))) << texto;
    EXPECT_FALSE(disponible(QAccessible::CheckBox, QStringLiteral("a.bin")));
    EXPECT_TRUE(disponible(QAccessible::CheckBox, QStringLiteral("b.bin")));
    pulsar(QAccessible::CheckBox, QStringLiteral("b.bin"));
    EXPECT_TRUE(marcado(QStringLiteral("b.bin")));
    EXPECT_TRUE(marcado(QStringLiteral("c.bin")));
    pulsar(QAccessible::CheckBox, QStringLiteral("a.bin"));
    EXPECT_FALSE(marcado(QStringLiteral("a.bin")));
}

TEST_F(DuplicatesView, spaceMarksTheRowWithTheFocusButNeverTheOriginal)
{
    abrirConTres();
    lista()->forceActiveFocus(Qt::TabFocusReason);
    tecla(Qt::Key_Space);
    EXPECT_FALSE(marcado(QStringLiteral("foto 1")));
    tecla(Qt::Key_Down);
    tecla(Qt::Key_Space);
    EXPECT_TRUE(marcado(QStringLiteral("foto 2")));
    EXPECT_TRUE(seVe(QStringLiteral("1 copias · 1 MB")));
    tecla(Qt::Key_Space);
    EXPECT_FALSE(marcado(QStringLiteral("foto 2")));
    EXPECT_FALSE(seVe(QStringLiteral("Desmarcar")));
}

TEST_F(DuplicatesView, aPersonMarksAllButTheOriginalConfirmsAndFindsTheResult)
{
    abrirConTres();
    pulsarBoton(QStringLiteral("Marcar todas menos la original"));
    EXPECT_TRUE(seVe(QStringLiteral("2 copias · 2 MB")));
    pulsarBoton(QStringLiteral("Mover a la Papelera"));
    esperar([&] { return seVe(QStringLiteral("¿Mover 2 copias?")); });
    EXPECT_TRUE(seVe(QStringLiteral("Va a la Papelera, no se elimina. De cada grupo se conserva al menos una "
                                    "copia. Si son clones APFS, el espacio físico liberado puede ser menor "
                                    "que el tamaño lógico mostrado.")));
    EXPECT_THAT(plataforma.m_papelera.recicladas, IsEmpty());
    confirmarConTeclado();
    esperar([&] { return seVe(QStringLiteral("Todo está en orden")); });
    EXPECT_TRUE(seVe(QStringLiteral("Movidas 2 copias · 0 GB")));
    EXPECT_THAT(plataforma.m_papelera.recicladas, ElementsAre(en("foto 2"), en("foto 3")));
    EXPECT_FALSE(seVe(QStringLiteral("Desmarcar")));
}

TEST_F(DuplicatesView, theConfirmationStartsOnCancel)
{
    abrirConTres();
    pulsarBoton(QStringLiteral("Marcar todas menos la original"));
    pulsarBoton(QStringLiteral("Mover a la Papelera"));
    esperar([&] { return seVe(QStringLiteral("Cancelar")); });
    tecla(Qt::Key_Return);
    esperar([&] { return !seVe(QStringLiteral("Cancelar")); });
    EXPECT_THAT(plataforma.m_papelera.recicladas, IsEmpty());
    EXPECT_TRUE(seVe(QStringLiteral("2 copias · 2 MB")));
    pulsarBoton(QStringLiteral("Desmarcar"));
    EXPECT_FALSE(seVe(QStringLiteral("Desmarcar")));
}

TEST_F(DuplicatesView, whatCouldNotMoveIsToldInWords)
{
    abrirConTres();
    plataforma.m_papelera.alReciclar = [](const std::string &) { return std::string{"el disco está lleno"}; };
    pulsarBoton(QStringLiteral("Marcar todas menos la original"));
    pulsarBoton(QStringLiteral("Mover a la Papelera"));
    confirmarConTeclado();
    esperar([&] { return seVe(QStringLiteral("Movidas 0 copias · 0 GB")); });
    EXPECT_TRUE(objeto(QAccessible::List, QStringLiteral("Lo que no se movió")));
    esperarReposo();
    EXPECT_TRUE(seVe(QStringLiteral("3 copias de 1 MB")));
}

TEST_F(DuplicatesView, anAnalysisIsToldAndCanBeStopped)
{
    Freno freno;
    plataforma.m_accesoArchivos.alMirarCarpeta = freno.aqui();
    grupo("foto", 2, 1000);
    abrir(Seccion::duplicados);
    pulsarBoton(QStringLiteral("Analizar ahora"));
    for (const char *texto :
         {"Analizando…", "Puedes seguir usando Ovanta mientras termina.", "Recorriendo carpetas…", "Detener"})
        EXPECT_TRUE(seVe(QString::fromUtf8(texto))) << texto;
    EXPECT_FALSE(disponible(QAccessible::Button, QStringLiteral("Analizar ahora")));
    esperar([&] { return freno.llegado(); });
    pulsarBoton(QStringLiteral("Detener"));
    EXPECT_TRUE(seVe(QStringLiteral("Deteniendo…")));
    EXPECT_FALSE(disponible(QAccessible::Button, QStringLiteral("Deteniendo")));
    freno.soltar();
    esperar([&] { return seVe(QStringLiteral("Busca copias idénticas")); });
    EXPECT_FALSE(seVe(QStringLiteral("Detener")));
}

TEST_F(DuplicatesView, theListKeepsItsPlaceWhenAStagePublishes)
{
    for (int i = 0; i < 40; ++i)
        grupo("grupo " + std::to_string(i), 3, 1000 + static_cast<std::size_t>(i));
    analizar();
    abrir(Seccion::duplicados);
    lista()->forceActiveFocus(Qt::TabFocusReason);
    lista()->setProperty("contentY", 1500.0);
    lista()->setProperty("currentIndex", 30);
    lista()->setProperty("contentY", 1537.0);
    reposar();
    const auto antes = lugar();
    ASSERT_FALSE(antes.first.isEmpty());
    const auto *filas = lista()->property("filas").value<ModeloConClaves *>();
    const QString actual = filas->claveDe(30);

    grupo("mayor", 4, 9000);
    analizar();
    EXPECT_EQ(lugar(), antes) << "at once, before anything is drawn";
    EXPECT_EQ(filas->claveDe(lista()->property("currentIndex").toInt()), actual);
    EXPECT_EQ(lista()->property("currentIndex").toInt(), 34);
    EXPECT_TRUE(lista()->hasActiveFocus());
    reposar();
    EXPECT_EQ(lugar(), antes);
}

TEST_F(DuplicatesView, theListStaysWithinItsRowsWhenItShrinks)
{
    for (int i = 0; i < 30; ++i)
        grupo("grupo " + std::to_string(i), 2, 1000 + static_cast<std::size_t>(i));
    analizar();
    abrir(Seccion::duplicados);
    lista()->forceActiveFocus(Qt::TabFocusReason);
    tecla(Qt::Key_End);
    reposar();
    for (int i = 0; i < 28; ++i)
        std::filesystem::remove(en("grupo " + std::to_string(i) + " 2"));
    analizar();
    reposar();
    EXPECT_TRUE(seVe(QStringLiteral("grupo 29 1")));
    EXPECT_TRUE(seVe(QStringLiteral("grupo 28 2")));
    EXPECT_EQ(lista()->property("count").toInt(), 4);
}

TEST_F(DuplicatesView, aHundredThousandRowsBuildOnlyThoseThatShow)
{
    for (std::size_t i = 1; i <= 10'000; ++i) {
        const std::string nombre = std::to_string(i);
        archivo(nombre, "");
        std::filesystem::resize_file(en(nombre), i);
        for (int enlace = 1; enlace < 10; ++enlace)
            enlaceFisico(nombre, nombre + "-" + std::to_string(enlace));
    }
    analizar();
    abrir(Seccion::duplicados);
    EXPECT_EQ(lista()->property("count").toInt(), 100'000);
    EXPECT_LT(filasConstruidas(), 60);
    lista()->forceActiveFocus(Qt::TabFocusReason);
    tecla(Qt::Key_End);
    reposar();
    EXPECT_EQ(lista()->property("currentIndex").toInt(), 99'999);
    EXPECT_LT(filasConstruidas(), 60);
}

TEST_F(DuplicatesView, theMagnifierStandsStillWithReducedMotionAndMovesElse)
{
    Freno freno;
    plataforma.m_accesoArchivos.alMirarCarpeta = freno.aqui();
    abrir(Seccion::duplicados);
    casa.carpeta(casa.en("Downloads"));
    pulsarBoton(QStringLiteral("Analizar ahora"));
    QQuickItem *lupa = nullptr;
    const std::function<void(QQuickItem *)> buscar = [&](QQuickItem *desde) {
        if (QByteArray(desde->metaObject()->className()).startsWith("Lupa")) lupa = desde;
        for (QQuickItem *hijo : desde->childItems())
            buscar(hijo);
    };
    buscar(ventana()->contentItem());
    ASSERT_NE(lupa, nullptr);
    EXPECT_FALSE(lupa->property("enMovimiento").toBool());
    plataforma.m_apariencia.fijar({.movimientoReducido = false});
    EXPECT_TRUE(lupa->property("enMovimiento").toBool());
    esperar([&] { return lupa->property("vuelta").toReal() > 0; });
    ventana()->hide();
    EXPECT_FALSE(lupa->property("enMovimiento").toBool());
    freno.soltar();
    esperarReposo();
}
