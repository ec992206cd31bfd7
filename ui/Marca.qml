import QtQuick
import QtQuick.Layouts
import Ovanta

RowLayout {
    spacing: Tema.espacio3
    OvantaIcon {
        Layout.preferredWidth: 42
        Layout.preferredHeight: 42
    }
    ColumnLayout {
        spacing: 1
        Texto {
            text: "Ovanta"
            font.pixelSize: Tema.letraCabecera + 1
            font.weight: Font.Bold
            Layout.fillWidth: true
        }
        Nota {
            text: "Más espacio para lo que importa"
            font.pixelSize: Tema.letraNota - 1
            wrapMode: Text.Wrap
            Layout.fillWidth: true
        }
    }
}
