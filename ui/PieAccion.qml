import QtQuick
import QtQuick.Layouts
import Ovanta

/// The foot of a findings screen: what the last move did, what is marked, and the way to move it.
Rectangle {
    id: raiz
    required property HallazgosEstado estado
    /// How much is marked; empty where nothing is.
    property string seleccion
    property string titulo
    property bool deshabilitado
    signal accion

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
        ResultadoHallazgos {
            estado: raiz.estado
            Layout.fillWidth: true
        }
        RowLayout {
            spacing: Tema.espacio3
            Actividad { visible: raiz.estado.moviendo }
            Texto {
                visible: raiz.estado.moviendo
                text: raiz.estado.progresoMover
                elide: Text.ElideMiddle
                Layout.fillWidth: true
            }
            Rotulo {
                visible: !raiz.estado.moviendo
                simbolo: "checkmark.shield"
                texto: "Todo va a la Papelera y puede recuperarse."
                color: Tema.colores.verde
                Layout.fillWidth: true
            }
            Texto {
                visible: !raiz.estado.moviendo
                text: raiz.seleccion
                font.weight: Font.DemiBold
                horizontalAlignment: Text.AlignRight
                Accessible.ignored: text === ""
                Layout.fillWidth: true
            }
            Boton {
                variante: Boton.Primario
                simbolo: "trash"
                text: raiz.titulo
                enabled: !raiz.deshabilitado
                onClicked: raiz.accion()
            }
        }
    }
}
