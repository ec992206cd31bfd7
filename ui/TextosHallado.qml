import QtQuick
import QtQuick.Layouts
import Ovanta

/// The name of a finding and where it lies.
ColumnLayout {
    id: raiz
    property string nombre
    property string lugar

    spacing: 1
    Texto {
        text: raiz.nombre
        font.weight: Font.Medium
        elide: Text.ElideMiddle
        Layout.fillWidth: true
    }
    Nota {
        text: raiz.lugar
        elide: Text.ElideMiddle
        Layout.fillWidth: true
    }
}
