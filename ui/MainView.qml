import QtQuick
import Ovanta

/// The sidebar and the screen of the selected section.
FocusScope {
    id: raiz
    signal cerrar

    focus: true
    MainViewEstado { id: estado }

    BarraLateral {
        id: lateral
        estado: estado
        width: 228
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
    }
    Loader {
        id: detalle
        anchors { left: lateral.right; right: parent.right; top: parent.top; bottom: parent.bottom }
        source: estado.vista === "" ? "" : estado.vista + ".qml"
        onLoaded: entrada.restart()
    }
    ParallelAnimation {
        id: entrada
        OvantaPanel { target: detalle.item; property: "opacity"; from: Tema.movimientoReducido ? 1 : 0; to: 1 }
        OvantaPanel { target: detalle.item; property: "y"; from: Tema.movimientoReducido ? 0 : 10; to: 0 }
    }
    Atajos {
        estado: estado
        onCerrar: raiz.cerrar()
    }
}
