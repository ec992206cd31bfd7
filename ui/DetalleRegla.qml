import QtQuick
import QtQuick.Layouts
import Ovanta

/// What is known about a rule.
Dialogo {
    id: raiz
    property detalleDeRegla detalle

    titulo: detalle.nombre
    focoInicial: cerrar
    Texto {
        text: raiz.detalle.porque
        wrapMode: Text.Wrap
        lineHeight: 1.25
        Layout.fillWidth: true
    }
    Texto {
        text: raiz.detalle.coste
        color: Tema.colores.secundario
        wrapMode: Text.Wrap
        lineHeight: 1.25
        Layout.fillWidth: true
    }
    RutaSeleccionable {
        ruta: raiz.detalle.ruta
        Layout.fillWidth: true
    }
    Rotulo {
        visible: raiz.detalle.manual
        simbolo: "hand.raised.fill"
        texto: "Marcada como manual: Ovanta no la toca."
        color: Tema.colores.naranja
        letra: Tema.letraCuerpo - 1
        grosor: Font.Medium
        Layout.fillWidth: true
    }
    botones: [
        Boton {
            id: cerrar
            variante: Boton.Primario
            text: "Cerrar"
            onClicked: raiz.close()
        }
    ]
}
