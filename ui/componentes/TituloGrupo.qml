import QtQuick
import Ovanta

/// The head of a group inside a list.
Item {
    id: raiz
    required property string titulo
    property bool mostrado: true

    height: mostrado ? 38 : 0
    visible: mostrado
    Texto {
        anchors { left: parent.left; leftMargin: 2; bottom: parent.bottom; bottomMargin: 7 }
        text: raiz.titulo
        font.pixelSize: Tema.letraCuerpo - 1
        font.weight: Font.DemiBold
        color: Tema.colores.secundario
        Accessible.role: Accessible.Heading
    }
}
