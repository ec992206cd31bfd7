pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Ovanta

/// What a clean-up would do. Nothing has moved.
Dialogo {
    id: raiz
    property alias simulados: lista.model
    property string total

    titulo: "Simulación"
    width: Math.min(600, parent.width - 2 * Tema.margen)
    focoInicial: cerrar
    Texto {
        text: "No se moverá ningún archivo en esta vista previa."
        color: Tema.colores.secundario
        wrapMode: Text.Wrap
        Layout.fillWidth: true
    }
    ListaVirtual {
        id: lista
        Accessible.name: "Simulación"
        Layout.fillWidth: true
        Layout.preferredHeight: Math.min(contentHeight, raiz.parent.height - 330)
        delegate: FilaSimulacion { width: ListView.view.width - Tema.espacio3 }
    }
    Texto {
        text: raiz.total
        font.weight: Font.DemiBold
        wrapMode: Text.Wrap
        Layout.fillWidth: true
        Layout.topMargin: Tema.espacio1
    }
    Rotulo {
        simbolo: "checkmark.shield"
        texto: "Todo seguirá siendo recuperable desde Finder."
        color: Tema.colores.verde
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
