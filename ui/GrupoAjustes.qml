import QtQuick
import QtQuick.Layouts
import Ovanta

/// A group of settings under its title.
ColumnLayout {
    id: raiz
    property string simbolo
    property string titulo
    default property alias filas: columna.data

    spacing: Tema.espacio2
    RowLayout {
        spacing: Tema.espacio2
        Layout.leftMargin: 2
        Symbol {
            nombre: raiz.simbolo
            tamano: 20
            color: Tema.colores.azul
            Layout.preferredWidth: 20
            Layout.preferredHeight: 20
        }
        Texto {
            text: raiz.titulo
            font.pixelSize: Tema.letraCabecera
            font.weight: Font.DemiBold
            Layout.fillWidth: true
            Accessible.role: Accessible.Heading
        }
    }
    Superficie {
        implicitHeight: columna.implicitHeight + 2 * Tema.espacio1
        Layout.fillWidth: true
        Layout.fillHeight: true
        ColumnLayout {
            id: columna
            anchors { left: parent.left; right: parent.right; top: parent.top; leftMargin: Tema.espacio4; rightMargin: Tema.espacio4; topMargin: Tema.espacio1 }
            spacing: 0
        }
    }
}
