import QtQuick
import Ovanta

/// A section in the sidebar.
Item {
    id: raiz
    required property int index
    required property string titulo
    required property string icono
    property bool conFoco
    readonly property bool actual: ListView.isCurrentItem
    readonly property bool abreGrupo: ListView.section !== ListView.previousSection
    signal elegida

    height: 31 + cabeza.height
    Accessible.role: Accessible.ListItem
    Accessible.name: titulo
    Accessible.selectable: true
    Accessible.selected: actual
    Accessible.onPressAction: raiz.elegida()

    GrupoLateral {
        id: cabeza
        width: parent.width
        titulo: raiz.ListView.section
        mostrado: raiz.abreGrupo
    }
    Rectangle {
        anchors { fill: parent; leftMargin: Tema.espacio2 + 2; rightMargin: Tema.espacio2 + 3; topMargin: cabeza.height + 1; bottomMargin: 1 }
        radius: Tema.radioControl
        color: raiz.actual ? Tema.colores.acento : zona.pressed ? Tema.colores.pulsado
             : zona.containsMouse ? Tema.colores.realce : "transparent"
        AnilloFoco { mostrado: raiz.actual && raiz.conFoco }
        Symbol {
            id: simbolo
            anchors { left: parent.left; leftMargin: Tema.espacio2 + 1; verticalCenter: parent.verticalCenter }
            nombre: raiz.icono
            tamano: 19
            color: raiz.actual ? Tema.colores.sobreAcento : Tema.colores.azul
        }
        Texto {
            anchors { left: simbolo.right; leftMargin: Tema.espacio2 + 2; right: parent.right; verticalCenter: parent.verticalCenter }
            text: raiz.titulo
            color: raiz.actual ? Tema.colores.sobreAcento : Tema.colores.texto
            font.pixelSize: Tema.letraCuerpo
            font.weight: raiz.actual ? Font.DemiBold : Font.Normal
            Accessible.ignored: true
        }
    }
    MouseArea {
        id: zona
        anchors { fill: parent; topMargin: cabeza.height }
        hoverEnabled: true
        onClicked: raiz.elegida()
    }
}
