import QtQuick
import Ovanta

/// A badge: a word in a pill of its colour.
Rectangle {
    id: raiz
    property string texto
    property color tinta: Tema.colores.secundario
    implicitWidth: etiqueta.implicitWidth + 16
    implicitHeight: 20
    radius: 10
    color: Tema.colores.conOpacidad(tinta, 0.1)
    border.width: Tema.aspecto.altoContraste ? 1 : 0
    border.color: tinta
    Texto {
        id: etiqueta
        anchors.centerIn: parent
        text: raiz.texto
        color: raiz.tinta
        font.pixelSize: 11
        font.weight: Font.DemiBold
    }
}
