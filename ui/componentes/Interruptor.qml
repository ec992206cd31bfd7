import QtQuick
import QtQuick.Templates as T
import Ovanta

/// A switch, with its text to the right or a name for those who cannot see what it belongs to.
T.Switch {
    id: raiz
    property string nombre: text

    implicitWidth: text === "" ? indicator.width : implicitContentWidth
    implicitHeight: 28
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
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
        width: 38
        height: 22
        radius: 11
        color: raiz.checked ? Tema.colores.acento : Tema.colores.pulsado
        border.width: 1
        border.color: raiz.checked ? Tema.colores.acento : Tema.colores.bordeControl
        Rectangle {
            x: raiz.checked ? parent.width - width - 3 : 3
            anchors.verticalCenter: parent.verticalCenter
            width: 16
            height: 16
            radius: 8
            color: raiz.checked ? Tema.colores.sobreAcento : Tema.colores.superficie
            border.width: raiz.checked ? 0 : 1
            border.color: Tema.colores.bordeControl
            Behavior on x { OvantaPanel {} }
        }
        AnilloFoco {
            mostrado: raiz.visualFocus
            radio: 11
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
