pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Ovanta

/// The five things that the memory is taken by: a stacked bar, and a line for each.
Superficie {
    id: raiz
    required property MemoryViewEstado estado

    implicitHeight: columna.implicitHeight + 2 * Tema.espacio4
    ColumnLayout {
        id: columna
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; margins: Tema.espacio4 }
        spacing: Tema.espacio2
        Item {
            id: barra
            implicitHeight: 16
            Layout.fillWidth: true
            Layout.bottomMargin: Tema.espacio2
            Row {
                anchors.fill: parent
                spacing: 2
                Repeater {
                    id: tramos
                    model: raiz.estado.categorias
                    delegate: Rectangle {
                        required property int index
                        required property int tinte
                        required property double fraccion
                        width: Math.max(0, (barra.width - 2 * (tramos.count - 1)) * fraccion)
                        height: barra.height
                        radius: 4
                        color: Tema.colores.forma(tinte)
                        Behavior on width { OvantaDatos {} }
                    }
                }
            }
        }
        Repeater {
            model: raiz.estado.categorias
            delegate: FilaReparto { Layout.fillWidth: true }
        }
    }
}
