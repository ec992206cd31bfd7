import QtQuick
import Ovanta

/// What stands inside a button: a text and perhaps a symbol, in the middle. A text too long for it is cut.
Item {
    id: raiz
    property string texto
    property string simbolo
    property color tinta
    readonly property real sitioSimbolo: simbolo === "" ? 0 : dibujo.width + fila.spacing

    implicitWidth: rotulo.implicitWidth + sitioSimbolo
    implicitHeight: fila.implicitHeight
    Row {
        id: fila
        anchors.centerIn: parent
        spacing: 7
        Symbol {
            id: dibujo
            visible: raiz.simbolo !== ""
            nombre: raiz.simbolo
            tamano: 17
            color: raiz.tinta
            anchors.verticalCenter: parent.verticalCenter
        }
        Texto {
            id: rotulo
            width: Math.min(implicitWidth, Math.max(0, raiz.width - raiz.sitioSimbolo))
            text: raiz.texto
            color: raiz.tinta
            font.pixelSize: Tema.letraCuerpo - 1
            font.weight: Font.Medium
            anchors.verticalCenter: parent.verticalCenter
            Accessible.ignored: true
        }
    }
}
