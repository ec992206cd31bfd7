import QtQuick
import QtQuick.Layouts
import Ovanta

/// What is ticked, what may be done with it, and what the last move did.
Rectangle {
    id: raiz
    required property SpaceViewEstado estado

    implicitHeight: columna.implicitHeight + 2 * Tema.espacio3
    color: Tema.colores.superficie
    Rectangle {
        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: 1
        color: Tema.colores.borde
    }
    ColumnLayout {
        id: columna
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; leftMargin: Tema.margen; rightMargin: Tema.margen }
        spacing: Tema.espacio2
        ResultadoEspacio {
            estado: raiz.estado
            visible: raiz.estado.resumen !== "" && !raiz.estado.trabajando
            Layout.fillWidth: true
        }
        RowLayout {
            spacing: Tema.espacio2
            SeleccionEspacio {
                estado: raiz.estado
                Layout.fillWidth: true
            }
            Boton {
                text: "Simular"
                enabled: raiz.estado.puedeMover
                onClicked: raiz.estado.prepararSimulacion()
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
}
