import QtQuick
import QtQuick.Layouts
import Ovanta

/// The foot of the duplicates screen: what is marked and the way to move it.
Rectangle {
    id: raiz
    required property DuplicatesViewEstado estado

    implicitHeight: fila.implicitHeight + 2 * Tema.espacio3
    color: Tema.colores.superficie
    Rectangle {
        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: 1
        color: Tema.colores.borde
    }
    RowLayout {
        id: fila
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; leftMargin: Tema.margen; rightMargin: Tema.margen }
        spacing: Tema.espacio2
        Actividad {
            visible: raiz.estado.moviendo
            Layout.rightMargin: Tema.espacio1
        }
        Texto {
            visible: raiz.estado.moviendo
            text: raiz.estado.progresoMover
            elide: Text.ElideMiddle
            Layout.fillWidth: true
        }
        ColumnLayout {
            visible: !raiz.estado.moviendo
            spacing: 1
            Layout.fillWidth: true
            Layout.minimumHeight: 40
            Texto {
                text: raiz.estado.textoMarcadas
                font.weight: Font.DemiBold
                Layout.fillWidth: true
            }
            Nota {
                visible: text !== ""
                text: raiz.estado.textoReal
                wrapMode: Text.Wrap
                Layout.fillWidth: true
            }
        }
        Boton {
            text: "Desmarcar"
            enabled: raiz.estado.puedeMover
            onClicked: raiz.estado.desmarcarTodo()
        }
        Boton {
            variante: Boton.Primario
            simbolo: "trash"
            text: "Mover a la Papelera"
            enabled: raiz.estado.puedeMover
            onClicked: raiz.estado.pedirConfirmacion()
        }
    }
}
