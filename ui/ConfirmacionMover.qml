import QtQuick
import QtQuick.Layouts
import Ovanta

/// Asks before anything moves. The focus starts on the way out.
Dialogo {
    id: raiz
    property string mensaje
    property string textoMover: "Mover a la Papelera"
    property int variante: Boton.Primario
    signal confirmada

    width: Math.min(440, parent.width - 2 * Tema.margen)
    focoInicial: cancelar
    Texto {
        text: raiz.mensaje
        color: Tema.colores.secundario
        wrapMode: Text.Wrap
        lineHeight: 1.25
        Layout.fillWidth: true
    }
    botones: [
        Boton {
            id: cancelar
            text: "Cancelar"
            onClicked: raiz.close()
        },
        Boton {
            variante: raiz.variante
            simbolo: "trash"
            text: raiz.textoMover
            onClicked: raiz.confirmada()
        }
    ]
}
