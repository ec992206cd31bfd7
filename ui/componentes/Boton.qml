import QtQuick
import QtQuick.Templates as T
import Ovanta

/// A button with a text and perhaps a symbol, in one of four weights.
T.Button {
    id: raiz
    enum Variante { Secundario, Primario, Sencillo, Destructivo }
    property int variante: Boton.Secundario
    property string simbolo

    readonly property bool relleno: variante === Boton.Primario || variante === Boton.Destructivo
    readonly property color fondo: variante === Boton.Primario ? Tema.colores.acento
                                 : variante === Boton.Destructivo ? Tema.colores.destructivo
                                 : variante === Boton.Secundario ? Tema.colores.superficie : "transparent"
    readonly property color tinta: variante === Boton.Primario ? Tema.colores.sobreAcento
                                 : variante === Boton.Destructivo ? Tema.colores.sobreDestructivo
                                 : variante === Boton.Sencillo ? Tema.colores.azul : Tema.colores.texto

    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Tema.altoControl
    leftPadding: variante === Boton.Sencillo ? 10 : 14
    rightPadding: leftPadding
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    opacity: enabled ? 1 : 0.45
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

    contentItem: RotuloBoton {
        texto: raiz.text
        simbolo: raiz.simbolo
        tinta: raiz.tinta
    }
    background: Rectangle {
        radius: Tema.radioControl
        color: raiz.fondo
        border.width: raiz.relleno || raiz.variante === Boton.Sencillo ? 0 : 1
        border.color: Tema.colores.bordeControl
        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            visible: raiz.hovered || raiz.down
            color: raiz.down ? Tema.colores.pulsado : Tema.colores.realce
        }
        AnilloFoco { mostrado: raiz.visualFocus }
    }
}
