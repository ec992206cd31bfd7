import QtQuick
import Ovanta

/// What stands inside a button: a text and perhaps a symbol, in the middle.
Item {
    id: raiz
    property string texto
    property string simbolo
    property color tinta

    implicitWidth: fila.implicitWidth
    implicitHeight: fila.implicitHeight
    Row {
        id: fila
        anchors.centerIn: parent
        spacing: 7
        Symbol {
            visible: raiz.simbolo !== ""
            nombre: raiz.simbolo
            tamano: 17
            color: raiz.tinta
            anchors.verticalCenter: parent.verticalCenter
        }
        Texto {
            text: raiz.texto
            color: raiz.tinta
            font.pixelSize: Tema.letraCuerpo - 1
            font.weight: Font.Medium
            anchors.verticalCenter: parent.verticalCenter
            Accessible.ignored: true
        }
    }
}
