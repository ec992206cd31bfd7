import QtQuick
import QtQuick.Layouts
import Ovanta

/// One recommendation, with its button where something can be pressed.
Superficie {
    id: raiz
    required property string clave
    required property string icono
    required property string texto
    required property string boton
    signal elegida(string clave)

    implicitHeight: Math.max(58, fila.implicitHeight + 2 * Tema.espacio3)
    RowLayout {
        id: fila
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; leftMargin: Tema.espacio4; rightMargin: Tema.espacio3 }
        spacing: Tema.espacio3
        Symbol {
            nombre: raiz.icono
            tamano: 22
            color: Tema.colores.azul
        }
        Texto {
            text: raiz.texto
            font.pixelSize: Tema.letraCuerpo - 1
            wrapMode: Text.Wrap
            lineHeight: 1.15
            Layout.fillWidth: true
        }
        Boton {
            visible: raiz.boton !== ""
            text: raiz.boton
            Accessible.description: raiz.texto
            onClicked: raiz.elegida(raiz.clave)
        }
    }
}
