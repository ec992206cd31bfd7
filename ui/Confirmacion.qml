import QtQuick
import QtQuick.Layouts
import Ovanta

/// Asks before something is done. The focus starts on the way out.
Dialogo {
    id: raiz
    property string mensaje
    property string accion
    property string simbolo
    property bool destructiva
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
            variante: raiz.destructiva ? Boton.Destructivo : Boton.Primario
            simbolo: raiz.simbolo
            text: raiz.accion
            onClicked: raiz.confirmada()
        }
    ]
}
