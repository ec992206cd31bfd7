import QtQuick
import QtQuick.Layouts
import Ovanta

/// The caches: what each holds, a tick for those to clean, a dry run before anything moves.
Item {
    id: raiz
    Component.onCompleted: estado.alMostrar()
    SpaceViewEstado { id: estado }

    ColumnLayout {
        anchors { fill: parent; topMargin: Tema.espacio6 }
        spacing: Tema.espacio3
        CabeceraEspacio {
            estado: estado
            Layout.fillWidth: true
            Layout.leftMargin: Tema.margen
            Layout.rightMargin: Tema.margen
        }
        ListaReglas {
            estado: estado
            Layout.fillWidth: true
            Layout.fillHeight: true
        }
        PieEspacio {
            estado: estado
            Layout.fillWidth: true
        }
    }
    HojasEspacio { estado: estado }
}
