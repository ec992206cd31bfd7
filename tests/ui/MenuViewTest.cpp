#include "tests/ui/BancoPanel.h"

#include <QPointer>
#include <QQmlEngine>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

class MenuView : public BancoPanel
{
protected:
    /// The engine that the open panel was built by.
    QPointer<QQmlEngine> motor() const { return qmlEngine(panel()); }
    QString enfocado() const
    {
        QQuickItem *item = panel()->activeFocusItem();
        QAccessibleInterface *objeto = item ? QAccessible::queryAccessibleInterface(item) : nullptr;
        return objeto && objeto->role() == QAccessible::Button ? objeto->text(QAccessible::Name) : QString();
    }
    void esperarCerrado(const QPointer<QQmlEngine> &motor)
    {
        esperar([&] {
            return !interfaz->panelAbierto() && !motor && QGuiApplication::topLevelWindows().isEmpty();
        });
    }

    const QStringList botones{QStringLiteral("Revisar y borrar simuladores…"), QStringLiteral("Abrir Ovanta"),
                              QStringLiteral("Actualizar ahora"), QStringLiteral("Salir de Ovanta")};
};

} // namespace

TEST_F(MenuView, showsEveryBlockAndTheFourButtons)
{
    plataforma.m_bateria.actual =
        EstadoBateria{.porcentaje = 64, .cargando = true, .minutosRestantes = {}, .ciclos = 300, .salud = 71};
    ponerSimuladores({1, 40});
    ponerFiguras();
    abrirPanel();
    esperar([&] { return !app().sims().cargando(); });
    reposar();
    for (const char *texto :
         {"86,02 GB libres", "Queda poco espacio", "Usado 413,7 GB", "Avisa a 100 GB · crítico 50 GB",
          "En vivo", "Procesador", "23 %", "Memoria", "Presión normal", "Red", "↓ 1,7 MB/s", "↑ 18 KB/s",
          "Normal", "64 % · cargando", "Salud de la batería: 71 % · 300 ciclos · conviene revisarla",
          "Simuladores", "2 en total · 2,05 GB", "1 nuevos ocupan 1,02 GB"})
        EXPECT_TRUE(seVe(QString::fromUtf8(texto))) << texto;
    for (const QString &boton : botones)
        EXPECT_NE(objeto(QAccessible::Button, boton), nullptr) << boton.toStdString();
    const QSize antes = panel()->size();
    plataforma.m_bateria.actual.reset();
    plataforma.m_reloj.avanzar(std::chrono::seconds{80});
    reposar();
    EXPECT_FALSE(seVe(QStringLiteral("64 % · cargando"))) << "without a battery there is no row of it";
    EXPECT_LT(panel()->height(), antes.height()) << "the window follows its contents";
}

TEST_F(MenuView, tabGoesThroughTheButtonsInTheirOrder)
{
    abrirPanel();
    EXPECT_EQ(enfocado(), QString());
    for (const QString &boton : botones) {
        tecla(Qt::Key_Tab);
        EXPECT_EQ(enfocado(), boton);
    }
    tecla(Qt::Key_Tab);
    EXPECT_EQ(enfocado(), botones.constFirst());
    tecla(Qt::Key_Down);
    EXPECT_EQ(enfocado(), botones[1]);
    tecla(Qt::Key_Up);
    EXPECT_EQ(enfocado(), botones[0]);
}

TEST_F(MenuView, enterAndSpacePressTheButton)
{
    for (const Qt::Key cual : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        abrirPanel();
        for (int i = 0; i < 3; ++i)
            tecla(Qt::Key_Tab);
        const int lecturas = plataforma.m_volumen.lecturas;
        tecla(cual);
        EXPECT_EQ(plataforma.m_volumen.lecturas, lecturas + 1) << cual;
        interfaz->cerrarPanel();
        reposar();
    }
}

TEST_F(MenuView, escClosesItAndLeavesNoEngine)
{
    abrirPanel();
    const QPointer<QQmlEngine> suyo = motor();
    ASSERT_TRUE(suyo);
    QSignalSpy cerrado(interfaz.get(), &Interfaz::panelCerrado);
    tecla(Qt::Key_Escape);
    esperarCerrado(suyo);
    ASSERT_EQ(cerrado.count(), 1);
    EXPECT_FALSE(cerrado[0][0].toBool()) << "not by the focus: the next click opens it again";
}

TEST_F(MenuView, losingTheFocusClosesIt)
{
    abrirPanel();
    const QPointer<QQmlEngine> suyo = motor();
    QSignalSpy cerrado(interfaz.get(), &Interfaz::panelCerrado);
    {
        QWindow otra;
        otra.show();
        otra.requestActivate();
        esperar([&] { return !interfaz->panelAbierto(); });
    }
    esperarCerrado(suyo);
    ASSERT_EQ(cerrado.count(), 1);
    EXPECT_TRUE(cerrado[0][0].toBool());
}

TEST_F(MenuView, theFirstOpeningListsTheSimulatorsAndASecondOneWhileThatRunsStartsNone)
{
    ponerSimuladores({1});
    app();
    frenar();
    abrirPanel();
    EXPECT_TRUE(app().sims().cargando());
    EXPECT_TRUE(seVe(QStringLiteral("Consultando…")));
    tecla(Qt::Key_Escape);
    esperar([&] { return !panel(); });
    abrirPanel();
    EXPECT_TRUE(seVe(QStringLiteral("Consultando…")));
    soltar();
    esperar([&] { return !app().sims().cargando(); });
    EXPECT_EQ(simctls(), 1);
    EXPECT_TRUE(seVe(QStringLiteral("1 en total · 1,02 GB")));
}

TEST_F(MenuView, openingAnOpenPanelChangesNothing)
{
    abrirPanel();
    QQuickWindow *antes = panel();
    interfaz->abrirPanel({});
    EXPECT_EQ(panel(), antes);
}

TEST_F(MenuView, reviewingWithTheWindowClosedOpensItOnTheSimulators)
{
    abrirPanel();
    const QPointer<QQmlEngine> suyo = motor();
    QSignalSpy abierta(interfaz.get(), &Interfaz::ventanaAbierta);
    pulsarBoton(botones[0]);
    EXPECT_EQ(abierta.count(), 1);
    EXPECT_EQ(app().navegacion().seleccion(), Seccion::simuladores);
    esperar([&] { return !panel() && ventana() && ventana()->title() == QStringLiteral("Ovanta"); });
    EXPECT_TRUE(suyo) << "the window uses the engine on";
    ventana()->close();
    esperarCerrado(suyo);
}

TEST_F(MenuView, thePanelUsesTheWindowsEngineAndOutlivesTheWindow)
{
    ventanas().abrirVentana();
    QWindow *principal = ventana();
    abrirPanel();
    const QPointer<QQmlEngine> suyo = motor();
    EXPECT_EQ(qmlEngine(principal), suyo);
    principal->close();
    reposar();
    ASSERT_TRUE(suyo);
    if (interfaz->panelAbierto()) EXPECT_TRUE(seVe(botones[1]));
    interfaz->cerrarPanel();
    esperarCerrado(suyo);
}

TEST_F(MenuView, theWindowThatGoesByItselfTakesThePanelForClosed)
{
    abrirPanel();
    const QPointer<QQmlEngine> suyo = motor();
    panel()->close();
    esperarCerrado(suyo);
}

TEST_F(MenuView, standsWhollyOnTheScreenWhereverTheIconIs)
{
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    for (const QRect &icono :
         {QRect(area.right() - 20, area.top(), 20, 20), QRect(area.left(), area.bottom() - 20, 20, 20),
          QRect(), QRect(-500, -500, 24, 24)}) {
        abrirPanel(icono);
        EXPECT_TRUE(area.contains(panel()->geometry())) << icono.x();
        interfaz->cerrarPanel();
        reposar();
    }
}

TEST_F(MenuView, openedAndClosedTwoHundredTimesNothingOfItIsLeft)
{
    ponerFiguras();
    ventanas();
    for (int i = 0; i < 200; ++i) {
        plataforma.m_apariencia.mezcla = i % 2 == 0;
        interfaz->abrirPanel({});
        QCoreApplication::processEvents();
        const QPointer<QQmlEngine> suyo = motor();
        ASSERT_TRUE(suyo);
        interfaz->cerrarPanel();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        ASSERT_FALSE(suyo);
        ASSERT_TRUE(QGuiApplication::topLevelWindows().isEmpty());
    }
}
