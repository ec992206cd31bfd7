import QtQuick
import QtQuick.Layouts
import Ovanta

/// The settings, in four groups. Each is saved and in effect as soon as it is changed.
Item {
    id: raiz
    PrefsViewEstado { id: estado }

    PaginaDesplazable {
        anchors.fill: parent
        Cabecera {
            simbolo: "gearshape"
            titulo: "Ajustes"
            subtitulo: "Personaliza los avisos, el análisis y cómo se inicia Ovanta."
            Layout.fillWidth: true
            Layout.bottomMargin: Tema.espacio2
        }
        GridLayout {
            columns: raiz.width < 1000 ? 1 : 2
            columnSpacing: Tema.espacio6
            rowSpacing: Tema.espacio6
            Layout.fillWidth: true
            AjustesAvisos {
                estado: estado
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                Layout.fillHeight: true
            }
            AjustesBarra {
                estado: estado
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                Layout.fillHeight: true
            }
            AjustesAnalisis {
                estado: estado
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                Layout.fillHeight: true
            }
            AjustesSeguridad {
                estado: estado
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                Layout.fillHeight: true
            }
        }
    }
}
