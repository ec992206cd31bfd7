pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Ovanta

/// What the last move did, and in words what it left where it was.
ColumnLayout {
    id: raiz
    required property HallazgosEstado estado

    visible: estado.resumen !== ""
    spacing: Tema.espacio2
    Rotulo {
        simbolo: "checkmark.circle.fill"
        texto: raiz.estado.resumen
        color: Tema.colores.verde
        letra: Tema.letraCuerpo
        grosor: Font.Medium
        Layout.fillWidth: true
    }
    ListaVirtual {
        visible: count > 0
        model: raiz.estado.fallos
        spacing: Tema.espacio1
        Accessible.name: "Lo que no se movió"
        Layout.fillWidth: true
        Layout.preferredHeight: Math.min(contentHeight, 76)
        delegate: Texto {
            required property string modelData
            width: ListView.view.width - Tema.espacio4
            text: modelData
            color: Tema.colores.naranja
            font.pixelSize: Tema.letraNota
            wrapMode: Text.Wrap
        }
    }
}
