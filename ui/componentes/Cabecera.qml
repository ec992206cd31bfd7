import QtQuick
import QtQuick.Layouts
import Ovanta

/// The head of a screen: its symbol, title and what it is for.
RowLayout {
    id: raiz
    property string simbolo
    property string titulo
    property string subtitulo
    property color tinta: Tema.colores.azul

    spacing: Tema.espacio4
    Rectangle {
        visible: raiz.simbolo !== ""
        implicitWidth: 46
        implicitHeight: 46
        radius: 13
        color: Tema.colores.conOpacidad(raiz.tinta, 0.12)
        Symbol {
            anchors.centerIn: parent
            nombre: raiz.simbolo
            tamano: 26
            color: raiz.tinta
        }
    }
    ColumnLayout {
        spacing: 2
        Layout.fillWidth: true
        Texto {
            text: raiz.titulo
            font.pixelSize: Tema.letraTitulo
            font.weight: Font.Bold
            Layout.fillWidth: true
            Accessible.role: Accessible.Heading
        }
        Texto {
            text: raiz.subtitulo
            color: Tema.colores.secundario
            wrapMode: Text.Wrap
            Layout.fillWidth: true
        }
    }
}
