pragma ComponentBehavior: Bound
import QtQuick
import Ovanta

/// A soft shadow around the rectangle that fills its parent: a few faint layers, since the software
/// renderer has no blur.
Item {
    id: raiz
    property color color: Tema.colores.sombra
    property real radio: Tema.radioTarjeta
    property int alcance: 7
    property int caida: 3

    anchors.fill: parent
    Repeater {
        model: raiz.alcance
        Rectangle {
            required property int index
            anchors.fill: parent
            anchors.margins: -index - 1
            anchors.topMargin: -index - 1 + raiz.caida
            anchors.bottomMargin: -index - 1 - raiz.caida
            radius: raiz.radio + index + 1
            color: raiz.color
        }
    }
}
