import QtQuick
import QtQuick.Templates as T
import Ovanta

/// The scroll bar of lists and screens.
T.ScrollBar {
    id: raiz
    implicitWidth: 11
    implicitHeight: 11
    padding: 2
    minimumSize: 0.06
    visible: size < 1
    contentItem: Rectangle {
        implicitWidth: 7
        implicitHeight: 7
        radius: 3.5
        color: Tema.colores.conOpacidad(Tema.colores.secundario, raiz.pressed ? 0.8 : raiz.hovered ? 0.6 : 0.35)
    }
}
