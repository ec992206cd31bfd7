import QtQuick
import QtQuick.Layouts
import Ovanta

/// A symbol with a text, beside its first line.
RowLayout {
    id: raiz
    property string simbolo
    property string texto
    property color color: Tema.colores.secundario
    property int letra: Tema.letraNota
    property int grosor: Font.Normal

    spacing: Tema.espacio2 - 2
    Symbol {
        nombre: raiz.simbolo
        tamano: raiz.letra + 4
        color: raiz.color
        Layout.preferredWidth: tamano
        Layout.preferredHeight: tamano
        Layout.alignment: Qt.AlignTop
    }
    Texto {
        text: raiz.texto
        color: raiz.color
        font.pixelSize: raiz.letra
        font.weight: raiz.grosor
        wrapMode: Text.Wrap
        Layout.alignment: Qt.AlignTop
        Layout.fillWidth: true
        Layout.maximumWidth: implicitWidth + 1
    }
}
