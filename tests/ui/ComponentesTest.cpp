#include "tests/ui/BancoInterfaz.h"
#include "ui/MarcaOvanta.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

/// A window that holds one component.
class Componentes : public BancoInterfaz
{
protected:
    QQuickItem *montar(const QByteArray &qml)
    {
        app();
        motor = std::make_unique<QQmlEngine>();
        motor->addImportPath(QStringLiteral("qrc:/qt/qml"));
        QQmlComponent componente(motor.get());
        componente.setData("import QtQuick\nimport Ovanta\n" + qml, QUrl(QStringLiteral("qrc:/prueba.qml")));
        pieza.reset(qobject_cast<QQuickItem *>(componente.create()));
        EXPECT_TRUE(pieza) << componente.errorString().toStdString();
        pieza->setParentItem(ventana.contentItem());
        ventana.resize(400, 300);
        ventana.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&ventana));
        return pieza.get();
    }
    ~Componentes() override
    {
        pieza.reset();
        motor.reset();
    }

    QQuickWindow ventana;
    std::unique_ptr<QQmlEngine> motor;
    std::unique_ptr<QQuickItem> pieza;
};

void accionar(QQuickItem *pieza, const QString &accion)
{
    QAccessible::queryAccessibleInterface(pieza)->actionInterface()->doAction(accion);
}

} // namespace

TEST_F(Componentes, aCardGrowsUnderThePointerAndShrinksWhilePressed)
{
    QQuickItem *tarjeta = montar("EstiloTarjeta { width: 200; height: 100; text: \"Memoria\" }");
    QTest::mouseMove(&ventana, {50, 50});
    esperar([&] { return qFuzzyCompare(tarjeta->scale(), 1.015); });
    QTest::mousePress(&ventana, Qt::LeftButton, {}, {50, 50});
    esperar([&] { return qFuzzyCompare(tarjeta->scale(), 0.975); });
    QTest::mouseRelease(&ventana, Qt::LeftButton, {}, {50, 50});
}

TEST_F(Componentes, withReducedMotionACardDoesNotScale)
{
    plataforma.m_apariencia.fijar({.movimientoReducido = true});
    QQuickItem *tarjeta = montar("EstiloTarjeta { width: 200; height: 100; text: \"Memoria\" }");
    QTest::mousePress(&ventana, Qt::LeftButton, {}, {50, 50});
    QTest::qWait(200);
    EXPECT_TRUE(tarjeta->property("down").toBool());
    EXPECT_EQ(tarjeta->scale(), 1.0);
    QTest::mouseRelease(&ventana, Qt::LeftButton, {}, {50, 50});
}

TEST_F(Componentes, staggeredContentRisesIntoItsPlace)
{
    QQuickItem *lista = montar("AparicionEscalonada { indice: 6; width: 100; height: 50 }");
    QQuickItem *interior = lista->childItems().constFirst();
    EXPECT_EQ(interior->opacity(), 0.0);
    EXPECT_EQ(interior->y(), 10.0);
    esperar([&] { return interior->opacity() == 1.0 && interior->y() == 0.0; });
}

TEST_F(Componentes, withReducedMotionAListDoesNotShiftItSimplyShows)
{
    plataforma.m_apariencia.fijar({.movimientoReducido = true});
    QQuickItem *lista = montar("AparicionEscalonada { indice: 6; width: 100; height: 50 }");
    QQuickItem *interior = lista->childItems().constFirst();
    EXPECT_EQ(interior->y(), 0.0);
    esperar([&] { return interior->opacity() == 1.0; });
}

TEST_F(Componentes, theProgramsIconIsItsPicture)
{
    QQuickItem *icono = montar("OvantaIcon {}");
    EXPECT_EQ(icono->property("imagen").toUrl(),
              QUrl(QStringLiteral("qrc:/ovanta/imagenes/belmora-ovanta-icon.svg")));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(icono)->text(QAccessible::Name),
              QStringLiteral("Ovanta de Belmora"));
}

TEST_F(Componentes, withNeitherIconPictureTheSymbolStandsInItsPlace)
{
    EXPECT_EQ(imagenDeMarca(mostrar(casa.ruta())), QUrl());
    QQuickItem *icono = montar("OvantaIcon { imagen: \"\" }");
    QQuickItem *simbolo = icono->childItems().constLast();
    EXPECT_EQ(simbolo->property("nombre").toString(), QStringLiteral("sparkles"));
    EXPECT_TRUE(simbolo->isVisible());
}

TEST_F(Componentes, theOlderPictureServesWhereTheNewOneIsMissing)
{
    casa.archivo(casa.en("sarvel-cleaner-icon.svg"));
    EXPECT_EQ(imagenDeMarca(mostrar(casa.ruta())),
              QUrl::fromLocalFile(mostrar(casa.en("sarvel-cleaner-icon.svg"))));
}

TEST_F(Componentes, aButtonActsOnceForMouseKeysAndAssistiveTechnology)
{
    QQuickItem *boton = montar("Boton { text: \"Simular\"; focus: true }");
    QSignalSpy pulsado(boton, SIGNAL(clicked()));
    QTest::mouseClick(&ventana, Qt::LeftButton, {}, {20, 15});
    EXPECT_EQ(pulsado.count(), 1);
    boton->forceActiveFocus();
    QTest::keyClick(&ventana, Qt::Key_Space);
    EXPECT_EQ(pulsado.count(), 2);
    QTest::keyClick(&ventana, Qt::Key_Return);
    EXPECT_EQ(pulsado.count(), 3);
    accionar(boton, QAccessibleActionInterface::pressAction());
    EXPECT_EQ(pulsado.count(), 4);
}

TEST_F(Componentes, aDisabledButtonDoesNothingForAnyone)
{
    QQuickItem *boton = montar("Boton { text: \"Simular\"; enabled: false }");
    QSignalSpy pulsado(boton, SIGNAL(clicked()));
    QTest::mouseClick(&ventana, Qt::LeftButton, {}, {20, 15});
    accionar(boton, QAccessibleActionInterface::pressAction());
    EXPECT_EQ(pulsado.count(), 0);
}

TEST_F(Componentes, aSwitchTogglesOnceForMouseKeysAndAssistiveTechnology)
{
    for (const QByteArray tipo : {"Interruptor", "Casilla"}) {
        QQuickItem *control = montar(tipo + " { text: \"Ocultar los vacíos\"; focus: true }");
        QAccessibleInterface *accesible = QAccessible::queryAccessibleInterface(control);
        EXPECT_EQ(accesible->role(), QAccessible::CheckBox);
        QSignalSpy cambiado(control, SIGNAL(toggled()));
        QTest::mouseClick(&ventana, Qt::LeftButton, {}, {15, 14});
        EXPECT_EQ(cambiado.count(), 1);
        EXPECT_TRUE(accesible->state().checked);
        control->forceActiveFocus();
        QTest::keyClick(&ventana, Qt::Key_Space);
        QTest::keyClick(&ventana, Qt::Key_Return);
        EXPECT_EQ(cambiado.count(), 3);
        accionar(control, QAccessibleActionInterface::toggleAction());
        EXPECT_EQ(cambiado.count(), 4);
        EXPECT_FALSE(accesible->state().checked);
    }
}

TEST_F(Componentes, aListOfTenThousandRowsBuildsOnlyTheVisibleOnesAndKeysReachItsEnds)
{
    QQuickItem *lista = montar("ListaVirtual { width: 300; height: 280; focus: true; model: 10000\n"
                               "delegate: Item { required property int index; width: 300; height: 28 } }");
    lista->forceActiveFocus();
    const auto filas = [&] {
        return lista->property("contentItem").value<QQuickItem *>()->childItems().size();
    };
    EXPECT_LT(filas(), 60);
    QTest::keyClick(&ventana, Qt::Key_End);
    EXPECT_EQ(lista->property("currentIndex").toInt(), 9999);
    QTest::keyClick(&ventana, Qt::Key_PageUp);
    EXPECT_EQ(lista->property("currentIndex").toInt(), 9989);
    QTest::keyClick(&ventana, Qt::Key_Home);
    QTest::keyClick(&ventana, Qt::Key_Down);
    EXPECT_EQ(lista->property("currentIndex").toInt(), 1);
    EXPECT_LT(filas(), 60);
}

TEST_F(Componentes, theLookFollowsTheDesktopLive)
{
    QQuickItem *tapiz = montar("Rectangle { color: Tema.colores.fondo; width: 10; height: 10 }");
    EXPECT_EQ(tapiz->property("color").value<QColor>(), paleta(false, false).fondo);
    plataforma.m_apariencia.fijar({.oscuro = true});
    EXPECT_EQ(tapiz->property("color").value<QColor>(), paleta(true, false).fondo);
    plataforma.m_apariencia.fijar({.oscuro = true, .altoContraste = true});
    EXPECT_EQ(tapiz->property("color").value<QColor>(), paleta(true, true).fondo);
}
