import QtQuick
import QtQuick.Layouts
import Ovanta

/// The disk at a glance, and beside it what could be saved.
Superficie {
    id: raiz
    required property ResumenViewEstado estado

    implicitHeight: fila.implicitHeight + 2 * Tema.espacio4 + 8
    RowLayout {
        id: fila
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; margins: Tema.espacio6 - 4 }
        spacing: Tema.espacio6 - 4
        AnilloUso { estado: raiz.estado }
        DatosDisco {
            estado: raiz.estado
            Layout.fillWidth: true
        }
        Rectangle {
            implicitWidth: 1
            Layout.fillHeight: true
            Layout.topMargin: Tema.espacio2
            Layout.bottomMargin: Tema.espacio2
            color: Tema.colores.borde
        }
        AhorroPotencial {
            estado: raiz.estado
            Layout.preferredWidth: 216
            Layout.maximumWidth: 216
        }
    }
}
