import QtQuick
import QtQuick.Layouts
import Ovanta

/// The head of a group of copies.
RowLayout {
    id: raiz
    property string cabeza
    property string extra
    property string titulo
    signal marcarTodas

    spacing: Tema.espacio3
    ColumnLayout {
        spacing: 1
        Texto {
            text: raiz.titulo
            font.weight: Font.DemiBold
            elide: Text.ElideMiddle
            Layout.fillWidth: true
            Accessible.role: Accessible.Heading
        }
        RowLayout {
            spacing: Tema.espacio3
            Nota { text: raiz.cabeza }
            Nota {
                text: raiz.extra
                color: Tema.colores.naranja
                Layout.fillWidth: true
            }
        }
    }
    Boton {
        text: "Marcar todas menos la original"
        Accessible.description: raiz.titulo
        onClicked: raiz.marcarTodas()
    }
}
