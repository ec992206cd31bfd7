import QtQuick
import QtQuick.Layouts
import Ovanta

/// Says that the figures are still growing.
Rectangle {
    id: raiz
    required property ResumenViewEstado estado

    implicitHeight: 50
    radius: Tema.radioTarjeta
    color: Tema.colores.conOpacidad(Tema.colores.azul, 0.1)
    RowLayout {
        anchors { fill: parent; leftMargin: Tema.espacio4; rightMargin: Tema.espacio2 }
        spacing: Tema.espacio3
        Actividad {}
        Texto {
            text: "Midiendo carpetas… los totales aún están incompletos."
            font.pixelSize: Tema.letraCuerpo - 1
            Layout.fillWidth: true
        }
        Boton {
            text: raiz.estado.textoDetener
            enabled: raiz.estado.puedeDetener
            onClicked: raiz.estado.detener()
        }
    }
}
