#pragma once

#include "app/OvantaApp.h"

#include <QObject>
#include <QtQml/qqml.h>

class QJSEngine;
class QQmlEngine;

namespace ovanta {

struct NavegacionAplicacionQml
{
    Q_GADGET
    QML_FOREIGN(ovanta::NavegacionAplicacion)
    QML_NAMED_ELEMENT(NavegacionAplicacion)
    QML_UNCREATABLE("made by the application")
};

/// The stores as QML sees them: `Ovanta.navegacion.seleccion`.
class Ovanta : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(ovanta::NavegacionAplicacion *navegacion READ navegacion CONSTANT)
public:
    /// The application whose stores are shown; to be called before an engine exists.
    static void usar(OvantaApp *app);
    static OvantaApp &app();
    static Ovanta *create(QQmlEngine *, QJSEngine *);

    NavegacionAplicacion *navegacion() const { return &app().navegacion(); }
};

} // namespace ovanta
