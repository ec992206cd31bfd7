import QtQuick
import Ovanta

/// The spring of panels and section changes: response 0.35, damping 0.85.
NumberAnimation {
    duration: Tema.movimientoReducido ? 0 : Tema.aspecto.duracionPanel
    easing.type: Easing.BezierSpline
    easing.bezierCurve: Tema.aspecto.curvaPanel
}
