import QtQuick
import QtQuick.Layouts
import Ovanta

/// What one can do from the panel. The arrows move through it as through a menu.
ColumnLayout {
    id: raiz
    required property MenuViewEstado estado

    spacing: 1
    BotonMenu {
        text: "Revisar y borrar simuladores…"
        simbolo: "trash"
        Layout.fillWidth: true
        onClicked: raiz.estado.revisarSimuladores()
    }
    BotonMenu {
        text: "Abrir Ovanta"
        simbolo: "macwindow"
        Layout.fillWidth: true
        onClicked: raiz.estado.abrirOvanta()
    }
    BotonMenu {
        text: "Actualizar ahora"
        simbolo: "arrow.clockwise"
        Layout.fillWidth: true
        onClicked: raiz.estado.actualizarAhora()
    }
    BotonMenu {
        text: "Salir de Ovanta"
        simbolo: "power"
        Layout.fillWidth: true
        onClicked: raiz.estado.salir()
    }
}
