import QtQuick
import QtQuick.Templates as T
import Ovanta

/// A whole card that is a button, in one colour.
T.AbstractButton {
    id: raiz
    property color tinta: Tema.colores.azul
    readonly property bool encima: hovered

    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    padding: Tema.espacio4
    scale: Tema.movimientoReducido ? 1 : down ? 0.975 : encima ? 1.015 : 1
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: raiz.activar()
    Keys.onReturnPressed: raiz.activar()
    Keys.onEnterPressed: raiz.activar()

    /// What a click does, for those who do not click.
    function activar() {
        if (enabled)
            clicked();
    }
    Behavior on scale {
        NumberAnimation {
            duration: 120
            easing.type: Easing.OutQuad
        }
    }

    background: Item {
        Sombra {
            visible: raiz.encima
            color: Tema.colores.conOpacidad(raiz.tinta, 0.18 / alcance)
            alcance: 6
        }
        Rectangle {
            anchors.fill: parent
            radius: Tema.radioTarjeta
            color: Tema.colores.superficie
        }
        Marco {
            anchors.fill: parent
            radio: Tema.radioTarjeta
            color: Tema.colores.conOpacidad(raiz.tinta, 0.1)
            grosor: 1.5
            borde: Tema.colores.conOpacidad(raiz.tinta, 0.65)
        }
        AnilloFoco {
            mostrado: raiz.visualFocus
            radio: Tema.radioTarjeta
        }
    }
}
