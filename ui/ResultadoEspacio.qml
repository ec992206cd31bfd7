import QtQuick
import QtQuick.Layouts
import Ovanta

/// The message of the last move.
RowLayout {
    id: raiz
    required property SpaceViewEstado estado
    readonly property color tinta: estado.conFallos ? Tema.colores.naranja : Tema.colores.verde

    spacing: Tema.espacio3
    Symbol {
        nombre: "checkmark.circle.fill"
        tamano: 20
        color: raiz.tinta
        Layout.alignment: Qt.AlignTop
        Layout.topMargin: 7
    }
    Texto {
        text: raiz.estado.resumen
        color: raiz.tinta
        font.weight: Font.Medium
        font.pixelSize: Tema.letraCuerpo - 1
        wrapMode: Text.Wrap
        Layout.fillWidth: true
    }
    Boton {
        variante: Boton.Sencillo
        text: "Ver la Papelera"
        Layout.alignment: Qt.AlignTop
        onClicked: raiz.estado.verPapelera()
    }
}
