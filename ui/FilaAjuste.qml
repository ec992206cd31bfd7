import QtQuick
import QtQuick.Layouts
import Ovanta

/// A setting: what it is, and its control at the right. Where the control itself says the text to
/// those who cannot see it, `leido` is false.
Item {
    id: raiz
    property string texto
    property string nota
    property bool leido
    property bool linea: true
    default property alias control: hueco.data
    property alias debajo: pie.data

    implicitHeight: columna.implicitHeight + 2 * Tema.espacio2
    Layout.fillWidth: true
    Rectangle {
        anchors { left: parent.left; right: parent.right; top: parent.top }
        visible: raiz.linea
        height: 1
        color: Tema.colores.borde
    }
    Column {
        id: columna
        anchors { left: parent.left; right: parent.right; top: parent.top; topMargin: Tema.espacio2 }
        RowLayout {
            width: parent.width
            spacing: Tema.espacio4
            Texto {
                text: raiz.texto
                wrapMode: Text.Wrap
                Layout.fillWidth: true
                Layout.minimumHeight: 28
                verticalAlignment: Text.AlignVCenter
                Accessible.ignored: !raiz.leido
            }
            RowLayout {
                id: hueco
                spacing: Tema.espacio4
                Layout.fillWidth: false
            }
        }
        Nota {
            text: raiz.nota
            visible: text !== ""
            wrapMode: Text.Wrap
            bottomPadding: Tema.espacio1
            width: parent.width
        }
        ColumnLayout {
            id: pie
            width: parent.width
            spacing: 0
        }
    }
}
