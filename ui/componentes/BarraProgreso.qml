import QtQuick
import Ovanta

/// A thin bar, filled from 0 to 1.
Rectangle {
    id: raiz
    property real valor
    property color tinta: Tema.colores.azul
    implicitHeight: 6
    radius: height / 2
    color: Tema.colores.pulsado
    Rectangle {
        width: Math.max(parent.height, parent.width * Math.min(1, Math.max(0, raiz.valor)))
        visible: raiz.valor > 0
        height: parent.height
        radius: parent.radius
        color: raiz.tinta
        Behavior on width { OvantaDatos {} }
    }
}
