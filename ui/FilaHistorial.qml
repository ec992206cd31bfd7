import QtQuick
import QtQuick.Layouts
import Ovanta

Item {
    id: raiz
    required property string nombre
    required property string ruta
    required property string fecha
    required property string tamano
    required property string regla

    height: 62
    Accessible.role: Accessible.ListItem
    Accessible.name: nombre
    Rectangle {
        anchors { fill: parent; topMargin: 3; bottomMargin: 3 }
        radius: Tema.radioTarjeta - 2
        color: Tema.colores.superficie
        border.width: 1
        border.color: Tema.colores.borde
        AnilloFoco {
            mostrado: raiz.activeFocus
            radio: Tema.radioTarjeta - 2
            anchors.margins: 0
        }
    }
    RowLayout {
        anchors { fill: parent; leftMargin: Tema.espacio4; rightMargin: Tema.espacio4 }
        spacing: Tema.espacio4
        ColumnLayout {
            spacing: 1
            Texto {
                text: raiz.nombre
                font.weight: Font.DemiBold
                elide: Text.ElideMiddle
                Layout.fillWidth: true
            }
            Nota {
                text: raiz.ruta
                elide: Text.ElideMiddle
                Layout.fillWidth: true
            }
        }
        Insignia {
            texto: raiz.regla
            tinta: Tema.colores.secundario
        }
        Nota {
            text: raiz.fecha
            horizontalAlignment: Text.AlignRight
            Layout.preferredWidth: 132
        }
        Texto {
            text: raiz.tamano
            font.weight: Font.DemiBold
            horizontalAlignment: Text.AlignRight
            Layout.preferredWidth: 82
        }
    }
}
