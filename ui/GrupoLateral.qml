import QtQuick
import Ovanta

Item {
    id: raiz
    required property string titulo
    property bool mostrado: true

    height: mostrado ? 28 : 0
    visible: mostrado
    Nota {
        anchors { left: parent.left; leftMargin: Tema.espacio4 + 2; bottom: parent.bottom; bottomMargin: 5 }
        text: raiz.titulo
        font.pixelSize: Tema.letraNota - 1
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
    }
}
