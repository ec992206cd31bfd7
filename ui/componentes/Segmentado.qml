pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Ovanta

/// A segmented picker: one of a few pages. The arrows, Home and End move through it. It never changes
/// `indice`: `elegida` tells what the user wants.
Rectangle {
    id: raiz
    property var titulos: []
    property int indice
    property string nombre
    signal elegida(int indice)

    implicitWidth: fila.implicitWidth + 6
    implicitHeight: Tema.altoControl
    radius: Tema.radioControl + 2
    color: Tema.colores.realce
    border.width: 1
    border.color: Tema.aspecto.altoContraste ? Tema.colores.bordeControl : Tema.colores.borde
    Accessible.role: Accessible.PageTabList
    Accessible.name: nombre

    function irA(destino: int) {
        const cual = Math.min(titulos.length - 1, Math.max(0, destino));
        elegida(cual);
        segmentos.itemAt(cual).forceActiveFocus(Qt.TabFocusReason);
    }

    RowLayout {
        id: fila
        anchors { fill: parent; margins: 3 }
        spacing: 2
        Repeater {
            id: segmentos
            model: raiz.titulos.length
            Segmento {
                required property int index
                text: raiz.titulos[index]
                elegido: index === raiz.indice
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.minimumWidth: 40
                onClicked: raiz.elegida(index)
                onMovido: pasos => raiz.irA(index + pasos)
            }
        }
    }
}
