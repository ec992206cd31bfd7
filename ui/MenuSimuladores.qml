import QtQuick
import QtQuick.Layouts
import Ovanta

/// What Xcode's simulators take up.
BloqueMenu {
    id: raiz
    required property MenuViewEstado estado

    simbolo: "iphone.gen3"
    titulo: "Simuladores"
    ocupado: estado.consultando
    Texto {
        text: raiz.estado.simuladores
        font.pixelSize: Tema.letraCuerpo - 1
        Layout.fillWidth: true
    }
    Nota {
        visible: text !== ""
        text: raiz.estado.nuevos
        color: raiz.estado.hayNuevos ? Tema.colores.naranja : Tema.colores.secundario
        font.weight: raiz.estado.hayNuevos ? Font.DemiBold : Font.Normal
        wrapMode: Text.Wrap
        Layout.fillWidth: true
    }
}
