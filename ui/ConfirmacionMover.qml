import QtQuick
import QtQuick.Layouts
import Ovanta

/// Asks before anything moves. The focus starts on the way out.
Dialogo {
    id: raiz
    signal confirmada

    width: Math.min(440, parent.width - 2 * Tema.margen)
    focoInicial: cancelar
    Texto {
        text: "Nada se elimina: todo va a la Papelera y puedes recuperarlo desde Finder. El espacio se libera al vaciarla."
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
            variante: Boton.Primario
            simbolo: "trash"
            text: "Mover a la Papelera"
            onClicked: raiz.confirmada()
        }
    ]
}
