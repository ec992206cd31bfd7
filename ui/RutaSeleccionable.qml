import QtQuick
import Ovanta

/// A path whose text can be selected and copied.
Rectangle {
    id: raiz
    property string ruta

    implicitHeight: texto.implicitHeight + 2 * Tema.espacio2
    radius: Tema.radioControl
    color: Tema.colores.realce
    TextEdit {
        id: texto
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; margins: Tema.espacio3 }
        text: raiz.ruta
        color: Tema.colores.texto
        selectionColor: Tema.colores.acento
        selectedTextColor: Tema.colores.sobreAcento
        font.family: Tema.familia
        font.pixelSize: Tema.letraCuerpo - 1
        textFormat: TextEdit.PlainText
        wrapMode: TextEdit.WrapAnywhere
        readOnly: true
        selectByMouse: true
        activeFocusOnTab: true
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    AnilloFoco { mostrado: texto.activeFocus }
}
