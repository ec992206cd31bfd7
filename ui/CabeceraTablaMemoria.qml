import QtQuick
import QtQuick.Layouts
import Ovanta

/// The names of the figures' columns; their widths are those of `FilaProceso`.
RowLayout {
    spacing: Tema.espacio3
    Item {
        implicitHeight: 36
        Layout.fillWidth: true
    }
    Nota {
        text: "Procesador"
        font.weight: Font.Medium
        horizontalAlignment: Text.AlignRight
        Layout.preferredWidth: 78
    }
    Nota {
        text: "Memoria"
        font.weight: Font.Medium
        horizontalAlignment: Text.AlignRight
        Layout.preferredWidth: 172
        Layout.rightMargin: Tema.espacio4
    }
}
