import QtQuick
import QtQuick.Layouts
import Ovanta

ColumnLayout {
    id: raiz
    property string principal
    property string nota

    spacing: 1
    Texto {
        text: raiz.principal
        font.weight: Font.DemiBold
        Layout.fillWidth: true
    }
    Nota {
        text: raiz.nota
        Layout.fillWidth: true
    }
}
