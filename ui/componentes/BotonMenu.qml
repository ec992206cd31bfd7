import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Ovanta

/// A button as a line of a menu: symbol and text at the left, lit under the pointer.
T.Button {
    id: raiz
    property string simbolo

    implicitHeight: Tema.altoControl
    leftPadding: Tema.espacio3
    rightPadding: Tema.espacio3
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    opacity: enabled ? 1 : 0.45
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: raiz.activar()
    Keys.onReturnPressed: raiz.activar()
    Keys.onEnterPressed: raiz.activar()
    Keys.onDownPressed: raiz.pasar(true)
    Keys.onUpPressed: raiz.pasar(false)

    /// What a click does, for those who do not click.
    function activar() {
        if (enabled)
            clicked();
    }
    function pasar(adelante: bool) {
        nextItemInFocusChain(adelante).forceActiveFocus(adelante ? Qt.TabFocusReason : Qt.BacktabFocusReason);
    }

    contentItem: RowLayout {
        spacing: Tema.espacio3
        Symbol {
            nombre: raiz.simbolo
            tamano: 18
            color: Tema.colores.azul
        }
        Texto {
            text: raiz.text
            font.pixelSize: Tema.letraCuerpo - 1
            font.weight: Font.Medium
            verticalAlignment: Text.AlignVCenter
            Layout.fillWidth: true
            Accessible.ignored: true
        }
    }
    background: Rectangle {
        radius: Tema.radioControl
        color: raiz.down ? Tema.colores.pulsado : raiz.hovered ? Tema.colores.realce : "transparent"
        AnilloFoco { mostrado: raiz.visualFocus }
    }
}
