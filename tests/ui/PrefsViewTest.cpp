#include "tests/ui/PrefsViewBanco.h"

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

using PrefsView = PrefsViewBanco;

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
    EXPECT_EQ(objeto(QAccessible::ComboBox, QStringLiteral("Avisar con batería baja"))
                  ->text(QAccessible::Description),
              QStringLiteral("Al 12 %"));
    EXPECT_EQ(app().stats().avisoBateria(), 12);
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
