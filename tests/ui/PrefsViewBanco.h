#pragma once

#include "tests/ui/BancoInterfaz.h"

#include <QTest>
#include <QWheelEvent>

namespace ovanta::pruebas {

/// The preferences screen in its window.
class PrefsViewBanco : public BancoVentana
{
protected:
    /// In a window that shows all of it.
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

} // namespace ovanta::pruebas
