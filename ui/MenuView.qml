import QtQuick
import QtQuick.Layouts
import Ovanta

/// The panel of the tray: disk, live figures and simulators at a glance, and where to go from there.
FocusScope {
    id: raiz
    signal cerrar

    implicitHeight: columna.implicitHeight + 2 * Tema.espacio3
    Component.onCompleted: estado.alMostrar()
    Keys.onEscapePressed: raiz.cerrar()
    MenuViewEstado { id: estado }

    ColumnLayout {
        id: columna
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Tema.espacio3 }
        spacing: Tema.espacio2
        MenuDisco {
            estado: estado
            Layout.fillWidth: true
        }
        MenuEnVivo {
            estado: estado
            Layout.fillWidth: true
        }
        MenuSimuladores {
            estado: estado
            Layout.fillWidth: true
        }
        MenuAcciones {
            estado: estado
            Layout.fillWidth: true
            Layout.topMargin: 2
        }
    }
}
