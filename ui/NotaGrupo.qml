import QtQuick
import QtQuick.Layouts
import Ovanta

/// What is said about a whole group, at its end.
Nota {
    wrapMode: Text.Wrap
    topPadding: Tema.espacio2
    bottomPadding: Tema.espacio2 + 2
    Layout.fillWidth: true
    Rectangle {
        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: 1
        color: Tema.colores.borde
    }
}
