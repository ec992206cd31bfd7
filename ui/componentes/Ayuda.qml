import QtQuick
import QtQuick.Templates as T
import Ovanta

/// Explains what it lies over while the pointer rests there.
Item {
    id: raiz
    required property string texto

    anchors.fill: parent
    HoverHandler { id: puntero }
    T.ToolTip {
        id: globo
        visible: puntero.hovered
        delay: 600
        x: Math.round((raiz.width - width) / 2)
        y: -height - Tema.espacio1
        width: Math.min(300, implicitContentWidth + leftPadding + rightPadding)
        implicitHeight: implicitContentHeight + topPadding + bottomPadding
        margins: Tema.espacio2
        padding: Tema.espacio2
        leftPadding: Tema.espacio3
        rightPadding: Tema.espacio3
        contentItem: Nota {
            text: raiz.texto
            color: Tema.colores.texto
            wrapMode: Text.Wrap
        }
        background: Superficie { radius: Tema.radioControl }
    }
}
