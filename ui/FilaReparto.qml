import QtQuick
import QtQuick.Layouts
import Ovanta

/// What one part of the memory is, and how much.
RowLayout {
    id: raiz
    required property string clave
    required property string cifra
    required property string linea
    required property int tinte

    spacing: Tema.espacio3
    Rectangle {
        implicitWidth: 10
        implicitHeight: 10
        radius: 3
        color: Tema.colores.forma(raiz.tinte)
    }
    Texto {
        text: raiz.clave
        font.weight: Font.Medium
        Layout.preferredWidth: 94
    }
    Nota {
        text: raiz.linea
        Layout.fillWidth: true
    }
    Texto {
        text: raiz.cifra
        font.weight: Font.DemiBold
        horizontalAlignment: Text.AlignRight
        Layout.preferredWidth: 92
    }
}
