#include "tests/ui/BancoInterfaz.h"

#include <QTest>
#include <QWheelEvent>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

constexpr QAccessible::Role deslizador = QAccessible::Slider;
constexpr QAccessible::Role contador = QAccessible::SpinBox;
constexpr QAccessible::Role selector = QAccessible::ComboBox;

const QString avisoCien = QStringLiteral("Aviso: 100 GB");
const QString bateria = QStringLiteral("Avisar con batería baja");

class PrefsView : public BancoVentana
{
protected:
    void abrirAlta()
    {
        abrir(Seccion::ajustes);
        ventana()->resize(1000, 1400);
        reposar();
    }
    QQuickItem *pieza(QAccessible::Role rol, const QString &nombre) const
    {
        QAccessibleInterface *uno = objeto(rol, nombre);
        return uno ? qobject_cast<QQuickItem *>(uno->object()) : nullptr;
    }
    void enfocar(QAccessible::Role rol, const QString &nombre)
    {
        QQuickItem *una = pieza(rol, nombre);
        ASSERT_NE(una, nullptr) << nombre.toStdString();
        una->forceActiveFocus(Qt::TabFocusReason);
    }
    /// What stands in the page that scrolls.
    QQuickItem *pagina() const
    {
        for (QQuickItem *una = pieza(QAccessible::Heading, QStringLiteral("Ajustes")); una;
             una = una->parentItem())
            if (una->inherits("QQuickFlickable")) return una;
        return nullptr;
    }
    QPoint centro(QQuickItem *una) const
    {
        return una->mapToScene(QPointF(una->width() / 2, una->height() / 2)).toPoint();
    }
    void girarRueda(QPoint donde)
    {
        QWheelEvent rueda(donde, ventana()->mapToGlobal(donde), {}, QPoint(0, -120), Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(ventana(), &rueda);
        QTest::qWait(300);
    }
};

} // namespace

TEST_F(PrefsView, theFourGroupsStandInTheirOrderWithAllTheirTexts)
{
    abrirAlta();
    for (const char *texto :
         {"Ajustes", "Personaliza los avisos, el análisis y cómo se inicia Ovanta.", "Avisos de disco",
          "Permiso de notificaciones", "Enviar un aviso de prueba",
          "No se repite el mismo aviso antes de 6 horas. Al subir por encima del umbral se rearma.",
          "Barra de menú", "Monitor en la barra",
          "Se actualiza cada 2 segundos leyendo directamente del sistema; no consume batería de forma "
          "apreciable.",
          "Sin icono en el Dock la app sigue viva en la barra de menú.", "Análisis",
          "Subir el mínimo acelera mucho el análisis: la mayoría de archivos de un Mac son diminutos y nunca "
          "compensan.",
          "Seguridad", "Nada se elimina: todo se mueve a la Papelera.",
          "Solo se opera dentro de tu carpeta de inicio.",
          "Documentos, Escritorio, Llaveros, .ssh y .git nunca se tocan.", "Abrir la Papelera"})
        EXPECT_TRUE(seVe(QString::fromUtf8(texto))) << texto;
    EXPECT_FALSE(seVe(QStringLiteral("El umbral crítico debería ser menor que el de aviso.")));
    double anterior = 0;
    for (const char *grupo : {"Avisos de disco", "Barra de menú", "Análisis", "Seguridad"}) {
        const double y = pieza(QAccessible::Heading, QString::fromUtf8(grupo))->mapToScene({}).y();
        EXPECT_GT(y, anterior) << grupo;
        anterior = y;
    }
}

TEST_F(PrefsView, everySwitchAndBoxIsDrivenByAssistiveTechnology)
{
    abrirAlta();
    const std::vector<std::pair<const char *, const char *>> casos{
        {"Avisarme cuando quede poco espacio", "notificar"},
        {"Mostrar los GB libres junto al icono", "mostrarTextoEnBarra"},
        {"Procesador", "barraCPU"},
        {"Memoria", "barraRAM"},
        {"Red", "barraRed"},
        {"Mini gráfica del procesador", "barraGrafica"},
        {"Mostrar el icono en el Dock", "mostrarEnDock"},
    };
    for (const auto &[nombre, clave] : casos) {
        QAccessibleInterface *control = objeto(QAccessible::CheckBox, QString::fromUtf8(nombre));
        ASSERT_NE(control, nullptr) << nombre;
        const bool antes = control->state().checked;
        pulsar(QAccessible::CheckBox, QString::fromUtf8(nombre));
        EXPECT_EQ(plataforma.m_preferencias.booleano(clave), !antes) << nombre;
        EXPECT_EQ(control->state().checked, !antes) << nombre;
    }
}

TEST_F(PrefsView, aSliderGoesByArrowsPagesAndEnds)
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

TEST_F(PrefsView, theLeastSizeStepsOverTheDefault)
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

TEST_F(PrefsView, theStepperGoesByKeysAndByItsTwoHalves)
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

TEST_F(PrefsView, assistiveTechnologyReadsAndSetsTheNumbers)
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

TEST_F(PrefsView, openingTheScreenChangesNoSettingHoweverOddItIs)
{
    plataforma.m_preferencias.fijar("umbralAviso", 1234.5);
    plataforma.m_preferencias.fijar("umbralCritico", -3.0);
    plataforma.m_preferencias.fijar("minimoMB", 700.0);
    plataforma.m_preferencias.fijar("diasDescargas", std::int64_t{3});
    plataforma.m_preferencias.fijar("avisoBateria", std::int64_t{12});
    abrirAlta();
    EXPECT_EQ(app().disco().umbralAviso(), 1234.5);
    EXPECT_EQ(app().disco().umbralCritico(), -3.0);
    EXPECT_EQ(app().scanner().minimoMB(), 700.0);
    EXPECT_EQ(app().scanner().diasDescargas(), 3);
    EXPECT_EQ(objeto(selector, bateria)->text(QAccessible::Description), QStringLiteral("Al 12 %"));
    EXPECT_EQ(app().stats().avisoBateria(), 12);
}

TEST_F(PrefsView, aSliderIsDraggedAndTheWheelOnlyScrollsThePage)
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

TEST_F(PrefsView, theWheelChangesNeitherPickerNorStepper)
{
    abrirAlta();
    girarRueda(centro(pieza(selector, bateria)));
    enfocar(selector, bateria);
    girarRueda(centro(pieza(selector, bateria)));
    girarRueda(centro(pieza(contador, QStringLiteral("«Descarga vieja» a partir de 90 días"))));
    EXPECT_EQ(app().stats().avisoBateria(), 15);
    EXPECT_EQ(app().scanner().diasDescargas(), 90);
}

TEST_F(PrefsView, thePickerGoesByKeysWithItsListClosed)
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

TEST_F(PrefsView, thePickersListOpensByKeyAndTakesAChoiceOrNone)
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

TEST_F(PrefsView, tabReachesEveryControlAndBringsItIntoView)
{
    abrir(Seccion::ajustes);
    ventana()->resize(900, 660);
    reposar();
    enfocar(QAccessible::CheckBox, QStringLiteral("Avisarme cuando quede poco espacio"));
    QStringList orden;
    for (int i = 0; i < 15; ++i) {
        QQuickItem *foco = ventana()->activeFocusItem();
        orden << QAccessible::queryAccessibleInterface(foco)->text(QAccessible::Name);
        const double y = foco->mapToScene({}).y();
        EXPECT_GE(y, 0) << orden.last().toStdString();
        EXPECT_LE(y + foco->height(), ventana()->height()) << orden.last().toStdString();
        tecla(Qt::Key_Tab);
    }
    EXPECT_EQ(
        orden.join(QLatin1Char('|')),
        QStringLiteral("Avisarme cuando quede poco espacio|Aviso: 100 GB|Crítico: 50 GB|"
                       "Enviar un aviso de prueba|Mostrar los GB libres junto al icono|Procesador|Memoria|"
                       "Red|Mini gráfica del procesador|Avisar con batería baja|"
                       "Mostrar el icono en el Dock|Abrir al iniciar sesión|"
                       "Ignorar archivos de menos de 1 MB|«Descarga vieja» a partir de 90 días|"
                       "Abrir la Papelera"));
}

TEST_F(PrefsView, turningOffTheDockIconWithTheMainWindowOpenKeepsTheWindow)
{
    abrirAlta();
    const QQuickWindow *antes = ventana();
    pulsar(QAccessible::CheckBox, QStringLiteral("Mostrar el icono en el Dock"));
    reposar();
    EXPECT_EQ(ventana(), antes);
    EXPECT_TRUE(ventana()->isVisible());
    ASSERT_EQ(plataforma.m_politica.fijadas.size(), 1U);
    EXPECT_EQ(plataforma.m_politica.fijadas[0], PoliticaActivacion::Politica::accesoria);
}

TEST_F(PrefsView, aFailedRegistrationShowsItsTextAndTheSwitchGoesBack)
{
    plataforma.m_inicio.fallo = "La operación no está permitida";
    abrirAlta();
    const QString texto = QStringLiteral("Abrir al iniciar sesión");
    esperarSegundoPlano(10'000);
    pulsar(QAccessible::CheckBox, texto);
    esperar([&] { return seVe(QStringLiteral("La operación no está permitida")); });
    EXPECT_FALSE(objeto(QAccessible::CheckBox, texto)->state().checked);
}

TEST_F(PrefsView, theWarningLineComesAndGoesWithTheThresholds)
{
    const QString linea = QStringLiteral("El umbral crítico debería ser menor que el de aviso.");
    abrirAlta();
    app().disco().fijarUmbralCritico(100);
    EXPECT_TRUE(seVe(linea));
    EXPECT_EQ(app().disco().umbralAviso(), 100);
    app().disco().fijarUmbralCritico(95);
    EXPECT_FALSE(seVe(linea));
}

TEST_F(PrefsView, theTrashOpensAndTheTestNoticeIsSent)
{
    abrirAlta();
    plataforma.m_notificaciones.respuesta(true);
    EXPECT_TRUE(seVe(QStringLiteral("concedido")));
    const std::size_t antes = plataforma.m_notificaciones.enviados.size();
    pulsarBoton(QStringLiteral("Enviar un aviso de prueba"));
    EXPECT_EQ(plataforma.m_notificaciones.enviados.size(), antes + 1);
    pulsarBoton(QStringLiteral("Abrir la Papelera"));
    EXPECT_EQ(plataforma.m_gestor.papelera, 1);
}
