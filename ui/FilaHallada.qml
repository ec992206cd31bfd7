import QtQuick
import QtQuick.Layouts
import Ovanta

/// A big file or a heavy folder.
Item {
    id: raiz
    required property BigFilesViewEstado estado
    required property int index
    required property string nombre
    required property string lugar
    required property string modificado
    required property string tamano
    required property bool marcada

    height: 62
    Accessible.role: Accessible.ListItem
    Accessible.name: nombre
    Keys.onSpacePressed: raiz.estado.marcar(raiz.index, !raiz.marcada)

    Rectangle {
        anchors { fill: parent; topMargin: 3; bottomMargin: 3 }
        radius: Tema.radioTarjeta - 2
        color: Tema.colores.superficie
        border.width: raiz.marcada ? 2 : 1
        border.color: raiz.marcada ? Tema.colores.conOpacidad(Tema.colores.azul, 0.65) : Tema.colores.borde
        AnilloFoco {
            mostrado: raiz.activeFocus
            radio: Tema.radioTarjeta - 2
            anchors.margins: 0
        }
    }
    RowLayout {
        anchors { fill: parent; leftMargin: Tema.espacio4; rightMargin: Tema.espacio2 }
        spacing: Tema.espacio3
        Casilla {
            nombre: raiz.nombre
            checked: raiz.marcada
            Accessible.description: raiz.lugar
            onToggled: raiz.estado.marcar(raiz.index, checked)
        }
        TextosHallado {
            nombre: raiz.nombre
            lugar: raiz.lugar
            Layout.fillWidth: true
        }
        Nota {
            visible: raiz.modificado !== ""
            text: raiz.modificado
            horizontalAlignment: Text.AlignRight
        }
        Texto {
            text: raiz.tamano
            font.weight: Font.DemiBold
            horizontalAlignment: Text.AlignRight
            Layout.preferredWidth: 82
        }
        Boton {
            variante: Boton.Sencillo
            text: "Finder"
            Accessible.description: raiz.nombre
            onClicked: raiz.estado.mostrarEnGestor(raiz.index)
        }
    }
}
