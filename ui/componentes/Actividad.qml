import QtQuick
import QtQuick.Window
import Ovanta

/// A small turning ring: something is under way. Stands still with reduced motion and while unseen.
Item {
    id: raiz
    property color tinta: Tema.colores.azul
    implicitWidth: 16
    implicitHeight: 16
    Anillo {
        id: anillo
        anchors.fill: parent
        grosor: 2.5
        valor: 0.28
        color: raiz.tinta
        pista: Tema.colores.pulsado
    }
    Timer {
        interval: 70
        repeat: true
        running: raiz.visible && !Tema.movimientoReducido && raiz.Window.visibility !== Window.Minimized
        onTriggered: anillo.rotation = (anillo.rotation + 30) % 360
    }
    Accessible.ignored: true
}
