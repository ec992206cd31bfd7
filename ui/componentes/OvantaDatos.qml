import QtQuick
import Ovanta

/// The spring of changing figures and data: response 0.45, damping 0.85.
NumberAnimation {
    duration: Tema.movimientoReducido ? 0 : Tema.aspecto.duracionDatos
    easing.type: Easing.BezierSpline
    easing.bezierCurve: Tema.aspecto.curvaDatos
}
