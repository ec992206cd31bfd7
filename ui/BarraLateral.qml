import QtQuick
import QtQuick.Layouts
import Ovanta

/// The brand, the sections in their groups, and the state of the disk.
Rectangle {
    id: raiz
    required property MainViewEstado estado

    color: Tema.colores.lateral
    Rectangle {
        anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
        width: 1
        color: Tema.colores.borde
    }
    ColumnLayout {
        anchors.fill: parent
        spacing: 0
        Marca {
            Layout.fillWidth: true
            Layout.margins: Tema.espacio4
            Layout.bottomMargin: Tema.espacio1
        }
        ListaSecciones {
            estado: raiz.estado
            Layout.fillWidth: true
            Layout.fillHeight: true
        }
        EstadoLateral {
            estado: raiz.estado
            Layout.fillWidth: true
            Layout.margins: Tema.espacio3
        }
    }
}
