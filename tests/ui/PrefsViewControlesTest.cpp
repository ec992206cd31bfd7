#include "tests/ui/PrefsViewBanco.h"

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

using PrefsViewControles = PrefsViewBanco;

constexpr QAccessible::Role deslizador = QAccessible::Slider;
constexpr QAccessible::Role contador = QAccessible::SpinBox;
constexpr QAccessible::Role selector = QAccessible::ComboBox;

const QString avisoCien = QStringLiteral("Aviso: 100 GB");
const QString bateria = QStringLiteral("Avisar con batería baja");

} // namespace

TEST_F(PrefsViewControles, aSliderGoesByArrowsPagesAndEnds)
{
    abrirAlta();
    enfocar(deslizador, avisoCien);
    const std::vector<std::pair<Qt::Key, double>> pasos{
        {Qt::Key_Right, 110},  {Qt::Key_Up, 120},  {Qt::Key_Left, 110},  {Qt::Key_Down, 100},
        {Qt::Key_PageUp, 150}, {Qt::Key_End, 400}, {Qt::Key_Right, 400}, {Qt::Key_PageDown, 350},
        {Qt::Key_Home, 20},    {Qt::Key_Left, 20}};
    for (const auto &[cual, valor] : pasos) {
        tecla(cual);
        EXPECT_EQ(app().disco().umbralAviso(), valor) << cual;
    }
    EXPECT_TRUE(seVe(QStringLiteral("Aviso: 20 GB")));
}

TEST_F(PrefsViewControles, theLeastSizeStepsOverTheDefault)
{
    abrirAlta();
    enfocar(deslizador, QStringLiteral("Ignorar archivos de menos de 1 MB"));
    tecla(Qt::Key_Left);
    EXPECT_EQ(app().scanner().minimoMB(), 0.1);
    for (int i = 0; i < 3; ++i)
        tecla(Qt::Key_Right);
    EXPECT_EQ(app().scanner().minimoMB(), 2.8);
    EXPECT_TRUE(objeto(deslizador, QStringLiteral("Ignorar archivos de menos de 3 MB")));
}

TEST_F(PrefsViewControles, theStepperGoesByKeysAndByItsTwoHalves)
{
    abrirAlta();
    const QString noventa = QStringLiteral("«Descarga vieja» a partir de 90 días");
    enfocar(contador, noventa);
    QQuickItem *una = pieza(contador, noventa);
    tecla(Qt::Key_Up);
    EXPECT_EQ(app().scanner().diasDescargas(), 97);
    tecla(Qt::Key_PageDown);
    EXPECT_EQ(app().scanner().diasDescargas(), 62);
    const QPoint medio = centro(una);
    QTest::mouseClick(ventana(), Qt::LeftButton, {}, medio + QPoint(18, 0));
    QTest::mouseClick(ventana(), Qt::LeftButton, {}, medio + QPoint(18, 0));
    QTest::mouseClick(ventana(), Qt::LeftButton, {}, medio - QPoint(18, 0));
    EXPECT_EQ(app().scanner().diasDescargas(), 69);
    tecla(Qt::Key_End);
    EXPECT_EQ(app().scanner().diasDescargas(), 365);
    tecla(Qt::Key_Home);
    EXPECT_EQ(app().scanner().diasDescargas(), 7);
}

TEST_F(PrefsViewControles, assistiveTechnologyReadsAndSetsTheNumbers)
{
    abrirAlta();
    QAccessibleInterface *aviso = objeto(deslizador, avisoCien);
    ASSERT_NE(aviso, nullptr);
    ASSERT_NE(aviso->valueInterface(), nullptr);
    EXPECT_EQ(aviso->valueInterface()->currentValue().toDouble(), 100);
    EXPECT_EQ(aviso->valueInterface()->minimumValue().toDouble(), 20);
    EXPECT_EQ(aviso->valueInterface()->maximumValue().toDouble(), 400);
    aviso->valueInterface()->setCurrentValue(253.0);
    EXPECT_EQ(app().disco().umbralAviso(), 250) << "the nearest step";
    EXPECT_EQ(aviso->valueInterface()->currentValue().toDouble(), 250);
    aviso->valueInterface()->setCurrentValue(251.0);
    EXPECT_EQ(aviso->valueInterface()->currentValue().toDouble(), 250) << "nothing changed";
    QAccessibleInterface *dias = objeto(contador, QStringLiteral("«Descarga vieja» a partir de 90 días"));
    ASSERT_NE(dias, nullptr);
    ASSERT_NE(dias->valueInterface(), nullptr);
    dias->valueInterface()->setCurrentValue(30.0);
    EXPECT_EQ(app().scanner().diasDescargas(), 30);
}

TEST_F(PrefsViewControles, aSliderIsDraggedAndTheWheelOnlyScrollsThePage)
{
    abrir(Seccion::ajustes);
    QQuickItem *aviso = pieza(deslizador, avisoCien);
    QQuickItem *hoja = pagina();
    ASSERT_NE(aviso, nullptr);
    ASSERT_NE(hoja, nullptr);
    const QPoint medio = centro(aviso);
    girarRueda(medio);
    EXPECT_EQ(app().disco().umbralAviso(), 100);
    EXPECT_GT(hoja->property("contentY").toReal(), 0) << "the page moved under the pointer";
    hoja->setProperty("contentY", 0);
    const QPoint fin = aviso->mapToScene(QPointF(aviso->width() - 2, aviso->height() / 2)).toPoint();
    QTest::mousePress(ventana(), Qt::LeftButton, {}, medio);
    QTest::mouseMove(ventana(), fin);
    QTest::mouseRelease(ventana(), Qt::LeftButton, {}, fin);
    EXPECT_EQ(app().disco().umbralAviso(), 400);
}

TEST_F(PrefsViewControles, theWheelChangesNeitherPickerNorStepper)
{
    abrirAlta();
    girarRueda(centro(pieza(selector, bateria)));
    enfocar(selector, bateria);
    girarRueda(centro(pieza(selector, bateria)));
    girarRueda(centro(pieza(contador, QStringLiteral("«Descarga vieja» a partir de 90 días"))));
    EXPECT_EQ(app().stats().avisoBateria(), 15);
    EXPECT_EQ(app().scanner().diasDescargas(), 90);
}

TEST_F(PrefsViewControles, thePickerGoesByKeysWithItsListClosed)
{
    abrirAlta();
    enfocar(selector, bateria);
    const std::vector<std::pair<Qt::Key, int>> pasos{{Qt::Key_Down, 20},     {Qt::Key_Up, 15},
                                                     {Qt::Key_End, 30},      {Qt::Key_Home, 0},
                                                     {Qt::Key_PageDown, 30}, {Qt::Key_PageUp, 0}};
    for (const auto &[cual, porcentaje] : pasos) {
        tecla(cual);
        EXPECT_EQ(app().stats().avisoBateria(), porcentaje) << cual;
    }
    EXPECT_EQ(plataforma.m_preferencias.entero("avisoBateria"), 0);
}

TEST_F(PrefsViewControles, thePickersListOpensByKeyAndTakesAChoiceOrNone)
{
    abrirAlta();
    enfocar(selector, bateria);
    tecla(Qt::Key_Return);
    esperar([&] { return objeto(QAccessible::ListItem, QStringLiteral("Nunca")) != nullptr; });
    tecla(Qt::Key_Down);
    EXPECT_EQ(app().stats().avisoBateria(), 15) << "not before it is chosen";
    tecla(Qt::Key_Escape);
    esperar([&] { return objeto(QAccessible::ListItem, QStringLiteral("Nunca")) == nullptr; });
    EXPECT_EQ(app().stats().avisoBateria(), 15);
    tecla(Qt::Key_Space);
    esperar([&] { return objeto(QAccessible::ListItem, QStringLiteral("Nunca")) != nullptr; });
    tecla(Qt::Key_PageDown);
    tecla(Qt::Key_Return);
    EXPECT_EQ(app().stats().avisoBateria(), 30);
    esperar([&] { return objeto(QAccessible::ListItem, QStringLiteral("Nunca")) == nullptr; });
    pulsar(selector, bateria);
    esperar([&] { return objeto(QAccessible::ListItem, QStringLiteral("Al 5 %")) != nullptr; });
    pulsar(QAccessible::ListItem, QStringLiteral("Al 5 %"));
    EXPECT_EQ(app().stats().avisoBateria(), 5);
    EXPECT_EQ(objeto(selector, bateria)->text(QAccessible::Description), QStringLiteral("Al 5 %"));
}
