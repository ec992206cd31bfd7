import QtQuick
import QtQuick.Window
import Ovanta

/// A magnifier that searches: it circles over its disc. Stands still with reduced motion and while
/// unseen.
Rectangle {
    id: raiz
    readonly property bool reducirMovimiento: Tema.movimientoReducido
    readonly property bool seVe: visible && Window.visibility !== Window.Hidden && Window.visibility !== Window.Minimized
    readonly property bool enMovimiento: seVe && !reducirMovimiento
    property real vuelta

    implicitWidth: 76
    implicitHeight: 76
    radius: 38
    color: Tema.colores.conOpacidad(Tema.colores.azul, 0.1)
    Symbol {
        x: (raiz.width - width) / 2 + (raiz.enMovimiento ? 7 * Math.cos(raiz.vuelta) : 0)
        y: (raiz.height - height) / 2 + (raiz.enMovimiento ? 7 * Math.sin(raiz.vuelta) : 0)
        nombre: "magnifyingglass"
        tamano: 36
        color: Tema.colores.azul
    }
    Timer {
        interval: 40
        repeat: true
        running: raiz.enMovimiento
        onTriggered: raiz.vuelta = (raiz.vuelta + 0.12) % (2 * Math.PI)
    }
}
