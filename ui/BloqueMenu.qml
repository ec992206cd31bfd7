import QtQuick
import QtQuick.Layouts
import Ovanta

/// A block of the panel under its title.
Superficie {
    id: raiz
    property string simbolo
    property string titulo
    property bool ocupado
    default property alias contenido: columna.data

    implicitHeight: columna.implicitHeight + 2 * Tema.espacio3
    ColumnLayout {
        id: columna
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; margins: Tema.espacio3 }
        spacing: Tema.espacio1 + 1
        RowLayout {
            spacing: Tema.espacio2 - 2
            Symbol {
                nombre: raiz.simbolo
                tamano: 16
                color: Tema.colores.secundario
            }
            Texto {
                text: raiz.titulo
                color: Tema.colores.secundario
                font.pixelSize: Tema.letraNota
                font.weight: Font.DemiBold
                Layout.fillWidth: true
                Accessible.role: Accessible.Heading
            }
            Actividad {
                visible: raiz.ocupado
                Layout.preferredWidth: 13
                Layout.preferredHeight: 13
            }
        }
    }
}
