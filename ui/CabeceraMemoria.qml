import QtQuick
import QtQuick.Layouts
import Ovanta

RowLayout {
    id: raiz
    required property MemoryViewEstado estado

    spacing: Tema.espacio4
    Cabecera {
        simbolo: "memorychip"
        titulo: "Memoria"
        subtitulo: raiz.estado.enUso
        Layout.fillWidth: true
    }
    ColumnLayout {
        spacing: Tema.espacio1
        Layout.fillWidth: false
        Boton {
            simbolo: "arrow.clockwise"
            text: "Actualizar"
            Layout.alignment: Qt.AlignRight
            onClicked: raiz.estado.medir()
        }
        Nota {
            text: raiz.estado.ultimaLectura
            Layout.alignment: Qt.AlignRight
        }
    }
}
