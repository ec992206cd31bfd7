import QtQuick
import QtQuick.Templates as T
import Ovanta

/// An option in the list of a picker.
T.ItemDelegate {
    id: raiz
    property string texto
    property bool elegida
    property bool resaltada

    implicitHeight: 30
    focusPolicy: Qt.NoFocus
    hoverEnabled: true
    leftPadding: 30
    rightPadding: 10
    Accessible.role: Accessible.ListItem
    Accessible.name: texto
    Accessible.selectable: true
    Accessible.selected: elegida
    Accessible.onPressAction: clicked()

    contentItem: Texto {
        text: raiz.texto
        color: raiz.resaltada ? Tema.colores.sobreAcento : Tema.colores.texto
        font.pixelSize: Tema.letraCuerpo - 1
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
    background: Rectangle {
        radius: Tema.radioControl - 2
        color: raiz.resaltada ? Tema.colores.acento : "transparent"
        Symbol {
            anchors { left: parent.left; leftMargin: 7; verticalCenter: parent.verticalCenter }
            visible: raiz.elegida
            nombre: "checkmark"
            tamano: 16
            color: raiz.resaltada ? Tema.colores.sobreAcento : Tema.colores.texto
        }
    }
}
