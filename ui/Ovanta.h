#pragma once

#include "app/OvantaApp.h"
#include "ui/componentes/Aspecto.h"

#include <QObject>
#include <QtQml/qqml.h>

class QJSEngine;
class QQmlEngine;

namespace ovanta {

class Interfaz;

struct NavegacionAplicacionQml
{
    Q_GADGET
    QML_FOREIGN(ovanta::NavegacionAplicacion)
    QML_NAMED_ELEMENT(NavegacionAplicacion)
    QML_UNCREATABLE("made by the application")
};

/// What every screen shares: `Ovanta.navegacion.seleccion`, `Ovanta.aspecto.colores`. The stores reach
/// QML through the state class of each screen.
class Ovanta : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(ovanta::NavegacionAplicacion *navegacion READ navegacion CONSTANT)
    Q_PROPERTY(ovanta::Aspecto *aspecto READ aspecto CONSTANT)
public:
    /// The application whose stores are shown, the look they are shown in and who opens windows; to be
    /// called before an engine exists. All must outlive the engine.
    static void usar(OvantaApp *app, Aspecto *aspecto, Interfaz *interfaz);
    static OvantaApp &app();
    static Interfaz &interfaz();
    static Ovanta *create(QQmlEngine *, QJSEngine *);

    NavegacionAplicacion *navegacion() const { return &app().navegacion(); }
    Aspecto *aspecto() const;
};

} // namespace ovanta
