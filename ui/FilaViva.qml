import QtQuick
import QtQuick.Layouts
import Ovanta

/// A live figure: its name with perhaps a word on it, the value or two of them, and how it went.
RowLayout {
    id: raiz
    property string simbolo
    property string nombre
    property string detalle
    property color tintaDetalle: Tema.colores.secundario
    property string valor
    property string segundoValor
    property color tintaValor: Tema.colores.texto
    property alias historial: curva.valores
    property alias maximo: curva.maximo
    property alias tintaCurva: curva.color

    spacing: Tema.espacio2
    Layout.preferredHeight: 34
    Symbol {
        nombre: raiz.simbolo
        tamano: 17
        color: Tema.colores.secundario
    }
    ColumnLayout {
        spacing: 0
        Layout.fillWidth: true
        Texto {
            text: raiz.nombre
            font.pixelSize: Tema.letraCuerpo - 1
            Layout.fillWidth: true
        }
        Nota {
            visible: text !== ""
            text: raiz.detalle
            color: raiz.tintaDetalle
            Layout.fillWidth: true
        }
    }
    ColumnLayout {
        spacing: 0
        Texto {
            text: raiz.valor
            color: raiz.tintaValor
            font.pixelSize: raiz.segundoValor === "" ? Tema.letraCuerpo + 1 : Tema.letraNota
            font.weight: raiz.segundoValor === "" ? Font.DemiBold : Font.Medium
            Layout.alignment: Qt.AlignRight
        }
        Texto {
            visible: text !== ""
            text: raiz.segundoValor
            color: raiz.tintaValor
            font.pixelSize: Tema.letraNota
            font.weight: Font.Medium
            Layout.alignment: Qt.AlignRight
        }
    }
    Sparkline {
        id: curva
        relleno: true
        Layout.preferredWidth: 92
        Layout.preferredHeight: 28
    }
}
