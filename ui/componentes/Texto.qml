import QtQuick
import Ovanta

/// A text in the program's font.
Text {
    color: Tema.colores.texto
    font.family: Tema.familia
    font.pixelSize: Tema.letraCuerpo
    textFormat: Text.PlainText
    elide: Text.ElideRight
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.ignored: text === ""
}
