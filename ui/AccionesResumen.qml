import QtQuick
import QtQuick.Layouts
import Ovanta

RowLayout {
    id: raiz
    required property ResumenViewEstado estado

    spacing: Tema.espacio2
    Boton {
        variante: Boton.Primario
        simbolo: "magnifyingglass"
        text: raiz.estado.textoAnalizar
        enabled: !raiz.estado.midiendoAlgo
        Layout.preferredWidth: 170
        onClicked: raiz.estado.analizarTodo()
    }
    Boton {
        simbolo: "trash"
        text: "Ver la Papelera"
        onClicked: raiz.estado.verPapelera()
    }
    Item { Layout.fillWidth: true }
    Rotulo {
        simbolo: "checkmark.shield"
        texto: "Nada se elimina: todo va a la Papelera y puedes recuperarlo."
        color: Tema.colores.verde
        Layout.maximumWidth: 390
    }
}
