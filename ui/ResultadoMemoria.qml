import QtQuick
import QtQuick.Layouts
import Ovanta

/// What the last closing did, and the way to force what refused.
RowLayout {
    id: raiz
    required property MemoryViewEstado estado
    readonly property bool quedan: estado.textoForzar !== ""

    spacing: Tema.espacio3
    Symbol {
        nombre: raiz.quedan ? "exclamationmark.circle" : "info.circle"
        tamano: 20
        color: raiz.quedan ? Tema.colores.naranja : Tema.colores.azul
        Layout.alignment: Qt.AlignTop
        Layout.topMargin: 7
    }
    Texto {
        text: raiz.estado.resultadoCierre
        font.pixelSize: Tema.letraCuerpo - 1
        wrapMode: Text.Wrap
        lineHeight: 1.15
        Layout.fillWidth: true
        Layout.minimumHeight: Tema.altoControl
        verticalAlignment: Text.AlignVCenter
    }
    Boton {
        visible: raiz.quedan
        text: raiz.estado.textoForzar
        Layout.maximumWidth: 280
        Layout.alignment: Qt.AlignTop
        onClicked: raiz.estado.pedirForzar()
    }
}
