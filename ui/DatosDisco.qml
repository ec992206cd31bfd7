import QtQuick
import QtQuick.Layouts
import Ovanta

ColumnLayout {
    id: raiz
    required property ResumenViewEstado estado

    spacing: Tema.espacio1
    Texto {
        text: raiz.estado.libres
        font.pixelSize: Tema.letraTitulo
        font.weight: Font.Bold
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: Tema.letraCabecera
        Layout.fillWidth: true
    }
    Rotulo {
        simbolo: raiz.estado.simboloNivel
        texto: raiz.estado.textoNivel
        color: Tema.colores.tinta(raiz.estado.tinteNivel)
        letra: Tema.letraCuerpo
        grosor: Font.DemiBold
        Layout.fillWidth: true
    }
    Nota {
        text: raiz.estado.volumen
        elide: Text.ElideMiddle
        Layout.fillWidth: true
        Layout.topMargin: Tema.espacio1
    }
    Nota {
        text: raiz.estado.umbrales
        wrapMode: Text.Wrap
        Layout.fillWidth: true
    }
}
