import QtQuick
import QtQuick.Layouts
import Ovanta

/// The used part of the disk as a ring, which fills once.
Item {
    id: raiz
    required property ResumenViewEstado estado
    property bool anilloListo: false

    implicitWidth: 120
    implicitHeight: 120
    Component.onCompleted: anilloListo = true
    Accessible.role: Accessible.Graphic
    Accessible.name: raiz.estado.porcentajeUsado + " usado"
    Anillo {
        anchors.fill: parent
        grosor: 13
        valor: raiz.anilloListo ? raiz.estado.fraccionUsada : 0
        color: Tema.colores.forma(raiz.estado.tinteNivel)
        pista: Tema.colores.pulsado
        Behavior on valor { OvantaDatos {} }
    }
    ColumnLayout {
        anchors.centerIn: parent
        spacing: 0
        Texto {
            text: raiz.estado.porcentajeUsado
            font.pixelSize: Tema.letraCifra
            font.weight: Font.Bold
            Layout.alignment: Qt.AlignHCenter
            Accessible.ignored: true
        }
        Nota {
            text: "usado"
            Layout.alignment: Qt.AlignHCenter
            Accessible.ignored: true
        }
    }
}
