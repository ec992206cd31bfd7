import QtQuick
import Ovanta

/// A system symbol by its name. Decoration only: the text beside it says what it means.
Text {
    id: raiz
    property string nombre
    property int tamano: 18

    text: Simbolos.glifo(nombre)
    color: Tema.colores.texto
    font.family: Tema.familiaSimbolos
    font.pixelSize: tamano
    textFormat: Text.PlainText
    width: tamano
    height: tamano
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter
    lineHeightMode: Text.FixedHeight
    lineHeight: tamano
    Accessible.ignored: true
}
