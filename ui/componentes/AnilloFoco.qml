import QtQuick
import Ovanta

/// The mark of the control that the keyboard acts on. Fills its parent, a little outside of it.
Rectangle {
    property bool mostrado
    property real radio: Tema.radioControl

    anchors.fill: parent
    anchors.margins: -Tema.anchoFoco - 1
    radius: radio + Tema.anchoFoco + 1
    visible: mostrado
    color: "transparent"
    border.width: Tema.anchoFoco
    border.color: Tema.colores.azul
}
