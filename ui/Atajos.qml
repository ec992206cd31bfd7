pragma ComponentBehavior: Bound
import QtQuick
import Ovanta

/// The keys that work everywhere in the window.
Item {
    id: raiz
    required property MainViewEstado estado
    signal cerrar

    Shortcut {
        sequence: "Ctrl+R"
        onActivated: raiz.estado.analizarDeNuevo()
    }
    Shortcut {
        sequence: "Ctrl+W"
        onActivated: raiz.cerrar()
    }
    Repeater {
        model: 9
        Item {
            id: atajo
            required property int index
            Shortcut {
                sequence: "Ctrl+" + (atajo.index + 1)
                onActivated: raiz.estado.seleccionar(atajo.index)
            }
        }
    }
}
