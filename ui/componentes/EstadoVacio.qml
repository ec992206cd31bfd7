import QtQuick
import QtQuick.Layouts
import Ovanta

/// What a screen shows where it has nothing to list.
ColumnLayout {
    id: raiz
    property string simbolo
    property string titulo
    property string mensaje
    property color tinta: Tema.colores.secundario

    spacing: Tema.espacio2
    Rectangle {
        Layout.alignment: Qt.AlignHCenter
        Layout.bottomMargin: Tema.espacio2
        implicitWidth: 76
        implicitHeight: 76
        radius: 38
        color: Tema.colores.conOpacidad(raiz.tinta, 0.1)
        Symbol {
            anchors.centerIn: parent
            nombre: raiz.simbolo
            tamano: 36
            color: raiz.tinta
        }
    }
    Texto {
        Layout.fillWidth: true
        text: raiz.titulo
        font.pixelSize: Tema.letraCabecera + 1
        font.weight: Font.DemiBold
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
    }
    Texto {
        Layout.alignment: Qt.AlignHCenter
        Layout.fillWidth: true
        Layout.maximumWidth: 460
        text: raiz.mensaje
        color: Tema.colores.secundario
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        lineHeight: 1.25
    }
}
