import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Ovanta

/// The first screen: the state of the disk, what can be saved, and the way to each section.
Item {
    id: raiz
    Component.onCompleted: estado.alMostrar()
    ResumenViewEstado { id: estado }

    Flickable {
        anchors.fill: parent
        contentHeight: columna.implicitHeight + 2 * Tema.espacio6
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        T.ScrollBar.vertical: BarraDesplazamiento {}

        ColumnLayout {
            id: columna
            x: Tema.margen
            y: Tema.espacio6
            width: parent.width - 2 * Tema.margen
            spacing: Tema.espacio4

            CabeceraResumen {
                estado: estado
                Layout.fillWidth: true
            }
            PanelDisco {
                estado: estado
                Layout.fillWidth: true
            }
            AvisoMidiendo {
                estado: estado
                visible: estado.midiendoAlgo
                Layout.fillWidth: true
            }
            AccionesResumen {
                estado: estado
                Layout.fillWidth: true
            }
            RejillaTarjetas {
                estado: estado
                Layout.fillWidth: true
            }
        }
    }
}
