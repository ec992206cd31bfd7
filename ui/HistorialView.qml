pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Ovanta

/// Everything that was moved, newest first. Read-only.
Item {
    id: raiz
    HistorialViewEstado { id: estado }

    ColumnLayout {
        anchors { fill: parent; topMargin: Tema.espacio6 }
        spacing: Tema.espacio4
        Cabecera {
            simbolo: "clock.arrow.circlepath"
            titulo: "Historial"
            subtitulo: "Todo lo que Ovanta ha movido. El espacio no se libera del todo hasta que vacías la Papelera."
            Layout.fillWidth: true
            Layout.leftMargin: Tema.margen
            Layout.rightMargin: Tema.margen
        }
        RowLayout {
            visible: !estado.vacio
            spacing: Tema.espacio4
            Layout.leftMargin: Tema.margen
            Layout.rightMargin: Tema.margen
            Texto {
                text: estado.elementos
                font.weight: Font.DemiBold
            }
            Texto {
                text: estado.total
                color: Tema.colores.secundario
                Layout.fillWidth: true
            }
            Boton {
                simbolo: "trash"
                text: "Abrir la Papelera"
                onClicked: estado.abrirPapelera()
            }
        }
        ListaVirtual {
            visible: !estado.vacio
            model: estado.filas
            Accessible.name: "Historial"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.leftMargin: Tema.margen
            Layout.rightMargin: Tema.margen / 2
            delegate: FilaHistorial { width: ListView.view.width - Tema.margen / 2 }
        }
        Item {
            visible: estado.vacio
            Layout.fillWidth: true
            Layout.fillHeight: true
            EstadoVacio {
                anchors.centerIn: parent
                width: parent.width - 2 * Tema.margen
                simbolo: "clock.badge.questionmark"
                titulo: "Aún no hay movimientos"
                mensaje: "Aquí aparecerá todo lo que envíes a la Papelera desde Ovanta."
            }
        }
    }
}
