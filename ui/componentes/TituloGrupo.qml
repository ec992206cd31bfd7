import QtQuick
import Ovanta

/// The head of a group inside a list.
Item {
    id: raiz
    required property string section

    width: ListView.view.width
    height: 38
    Texto {
        anchors { left: parent.left; leftMargin: 2; bottom: parent.bottom; bottomMargin: 7 }
        text: raiz.section
        font.pixelSize: Tema.letraCuerpo - 1
        font.weight: Font.DemiBold
        color: Tema.colores.secundario
        Accessible.role: Accessible.Heading
    }
}
