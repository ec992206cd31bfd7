import QtQuick
import QtQuick.Templates as T
import Ovanta

/// A page of a segmented picker.
T.TabButton {
    id: raiz
    property bool elegido
    /// So many places to the right.
    signal movido(int pasos)

    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    leftPadding: 4
    rightPadding: 4
    checkable: false
    // One place in the chain of the tab key, wherever the focus is.
    focusPolicy: elegido || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
    hoverEnabled: true
    Accessible.name: text
    Accessible.selectable: true
    Accessible.selected: elegido
    Accessible.onPressAction: clicked()
    Keys.onPressed: event => raiz.tecla(event)

    function tecla(event: KeyEvent) {
        const pasos = {
            [Qt.Key_Left]: -1,
            [Qt.Key_Up]: -1,
            [Qt.Key_Right]: 1,
            [Qt.Key_Down]: 1,
            [Qt.Key_Home]: -1000,
            [Qt.Key_End]: 1000
        };
        if (!(event.key in pasos))
            return;
        event.accepted = true;
        movido(pasos[event.key]);
    }

    contentItem: Texto {
        text: raiz.text
        color: raiz.elegido ? Tema.colores.texto : Tema.colores.secundario
        font.pixelSize: Tema.letraNota
        font.weight: raiz.elegido ? Font.DemiBold : Font.Medium
        elide: Text.ElideMiddle
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
    background: Rectangle {
        radius: Tema.radioControl
        color: raiz.elegido ? Tema.colores.superficie : raiz.hovered ? Tema.colores.realce : "transparent"
        border.width: raiz.elegido ? 1 : 0
        border.color: Tema.colores.bordeControl
        AnilloFoco { mostrado: raiz.visualFocus }
    }
}
