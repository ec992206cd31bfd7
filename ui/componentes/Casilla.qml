import QtQuick
import QtQuick.Templates as T
import Ovanta

/// A check box with its text.
T.CheckBox {
    id: raiz
    property string nombre: text

    implicitWidth: text === "" ? indicator.width : implicitContentWidth
    implicitHeight: 28
    focusPolicy: Qt.StrongFocus
    opacity: enabled ? 1 : 0.45
    Accessible.role: Accessible.CheckBox
    Accessible.name: nombre
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: raiz.alternar()
    Accessible.onToggleAction: raiz.alternar()
    Keys.onReturnPressed: raiz.alternar()
    Keys.onEnterPressed: raiz.alternar()

    /// What a click does, for those who do not click.
    function alternar() {
        if (!enabled)
            return;
        toggle();
        toggled();
    }

    indicator: Rectangle {
        y: (raiz.height - height) / 2
        width: 20
        height: 20
        radius: 6
        color: raiz.checked ? Tema.colores.acento : Tema.colores.superficie
        border.width: raiz.checked ? 0 : 1
        border.color: Tema.colores.bordeControl
        Symbol {
            anchors.centerIn: parent
            visible: raiz.checked
            nombre: "checkmark"
            tamano: 16
            color: Tema.colores.sobreAcento
        }
        AnilloFoco {
            mostrado: raiz.visualFocus
            radio: 6
        }
    }
    contentItem: Text {
        visible: raiz.text !== ""
        leftPadding: raiz.indicator.width + Tema.espacio2
        verticalAlignment: Text.AlignVCenter
        text: raiz.text
        color: Tema.colores.texto
        font.family: Tema.familia
        font.pixelSize: Tema.letraCuerpo - 1
        Accessible.ignored: true
    }
}
