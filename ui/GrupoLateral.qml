import QtQuick
import Ovanta

Item {
    id: raiz
    required property string section

    width: ListView.view.width
    height: 28
    Nota {
        anchors { left: parent.left; leftMargin: Tema.espacio4 + 2; bottom: parent.bottom; bottomMargin: 5 }
        text: raiz.section
        font.pixelSize: Tema.letraNota - 1
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
    }
}
