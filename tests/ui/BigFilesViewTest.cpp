#include "tests/ui/BancoHallazgos.h"

#include <QTest>
#include <gmock/gmock.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class BigFilesView : public BancoHallazgos
{
protected:
    void llenarYAbrir()
    {
        archivo("Captura 1.png", std::string(3'000'000, 'a'), 200);
        archivo("Editor.dmg", std::string(2'000'000, 'b'), 2);
        casa.archivo(casa.en("p/node_modules/indice.js"));
        pesadas = {{casa.en("p/node_modules"), 4000}};
        analizar();
        abrir(Seccion::pesados);
    }
    QQuickItem *pestana(const QString &titulo) const { return pieza(QAccessible::PageTab, titulo); }
};

} // namespace

TEST_F(BigFilesView, beforeAnAnalysisItOffersOne)
{
    abrir(Seccion::pesados);
    for (const char *texto :
         {"Lo más pesado",
          "Archivos sueltos y carpetas de dependencias regenerables. Nada se borra sin que lo marques.",
          "Archivos grandes (0)", "Dependencias (0)", "Descargas viejas (0)", "Capturas (0)",
          "Instaladores (0)", "Encuentra lo que ocupa más",
          "Analiza tus carpetas para ordenar los archivos por tamaño.", "Analizar ahora",
          "Todo va a la Papelera y puede recuperarse.", "Mover a la Papelera"})
        EXPECT_TRUE(seVe(QString::fromUtf8(texto))) << texto;
    EXPECT_FALSE(disponible(QAccessible::Button, QStringLiteral("Mover a la Papelera")));
}

TEST_F(BigFilesView, theTabsArePressedOrWalkedWithTheArrows)
{
    llenarYAbrir();
    EXPECT_TRUE(seVe(QStringLiteral("Editor.dmg")));
    pulsar(QAccessible::PageTab, QStringLiteral("Dependencias (1)"));
    EXPECT_TRUE(seVe(QStringLiteral("node_modules")));
    EXPECT_FALSE(seVe(QStringLiteral("Editor.dmg")));
    pestana(QStringLiteral("Dependencias (1)"))->forceActiveFocus(Qt::TabFocusReason);
    tecla(Qt::Key_Right);
    EXPECT_TRUE(pestana(QStringLiteral("Descargas viejas (1)"))->hasActiveFocus());
    EXPECT_TRUE(seVe(QStringLiteral("Captura 1.png")));
    tecla(Qt::Key_End);
    EXPECT_TRUE(objeto(QAccessible::PageTab, QStringLiteral("Instaladores (1)"))->state().selected);
    EXPECT_TRUE(seVe(QStringLiteral("Editor.dmg")));
    tecla(Qt::Key_Right);
    EXPECT_TRUE(pestana(QStringLiteral("Instaladores (1)"))->hasActiveFocus());
    tecla(Qt::Key_Home);
    EXPECT_TRUE(pestana(QStringLiteral("Archivos grandes (2)"))->property("elegido").toBool());
    tecla(Qt::Key_Left);
    EXPECT_TRUE(pestana(QStringLiteral("Archivos grandes (2)"))->hasActiveFocus());
}

TEST_F(BigFilesView, theFocusOfATabOutlastsAnAnalysis)
{
    llenarYAbrir();
    QQuickItem *suya = pestana(QStringLiteral("Archivos grandes (2)"));
    suya->forceActiveFocus(Qt::TabFocusReason);
    archivo("otro.bin", "x");
    analizar();
    EXPECT_EQ(pestana(QStringLiteral("Archivos grandes (3)")), suya);
    EXPECT_TRUE(suya->hasActiveFocus());
}

TEST_F(BigFilesView, aPersonMarksByKeyboardConfirmsAndFindsTheResult)
{
    llenarYAbrir();
    pieza(QAccessible::List, QStringLiteral("Archivos grandes (2)"))->forceActiveFocus(Qt::TabFocusReason);
    tecla(Qt::Key_Down);
    tecla(Qt::Key_Space);
    EXPECT_TRUE(marcado(QStringLiteral("Editor.dmg")));
    EXPECT_TRUE(seVe(QStringLiteral("1 marcados · 2 MB")));
    pulsarBoton(QStringLiteral("Mover a la Papelera"));
    esperar([&] { return seVe(QStringLiteral("¿Mover 1 elementos?")); });
    EXPECT_TRUE(
        seVe(QStringLiteral("Todo va a la Papelera. Las carpetas de dependencias se regeneran con npm "
                            "install, pip install o cargo build.")));
    EXPECT_TRUE(seVe(QStringLiteral("Mover y liberar 2 MB")));
    EXPECT_THAT(plataforma.m_papelera.recicladas, IsEmpty());
    tecla(Qt::Key_Tab);
    tecla(Qt::Key_Return);
    esperar([&] { return seVe(QStringLiteral("Archivos grandes (1)")); });
    EXPECT_TRUE(seVe(QStringLiteral("Movidos 1 · 4,1 MB")));
    EXPECT_THAT(plataforma.m_papelera.recicladas, ElementsAre(en("Editor.dmg")));
    EXPECT_FALSE(disponible(QAccessible::Button, QStringLiteral("Mover a la Papelera")));
}

TEST_F(BigFilesView, anAnalysisKeepsTheOldListsAndCanBeStopped)
{
    llenarYAbrir();
    Freno freno;
    plataforma.m_accesoArchivos.alMirarCarpeta = freno.aqui();
    pulsarBoton(QStringLiteral("Analizar de nuevo"));
    EXPECT_TRUE(seVe(QStringLiteral("Editor.dmg")));
    esperar([&] { return freno.llegado(); });
    pulsarBoton(QStringLiteral("Detener"));
    EXPECT_TRUE(seVe(QStringLiteral("Deteniendo")));
    freno.soltar();
    esperarReposo();
    EXPECT_TRUE(seVe(QStringLiteral("Editor.dmg")));
    EXPECT_FALSE(seVe(QStringLiteral("Deteniendo")));
}
