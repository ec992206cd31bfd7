import QtQuick
import QtQuick.Layouts
import Ovanta

/// What takes the memory, what can be done about it, and the applications that can be closed.
Item {
    id: raiz
    MemoryViewEstado { id: estado }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0
        PaginaDesplazable {
            Layout.fillWidth: true
            Layout.fillHeight: true
            CabeceraMemoria {
                estado: estado
                Layout.fillWidth: true
            }
            PresionMemoria {
                estado: estado
                Layout.fillWidth: true
            }
            RepartoMemoria {
                estado: estado
                Layout.fillWidth: true
            }
            SwapMemoria {
                estado: estado
                Layout.fillWidth: true
            }
            RecomendacionesMemoria {
                estado: estado
                visible: estado.hayRecomendaciones
                Layout.fillWidth: true
            }
            TablaMemoria {
                estado: estado
                Layout.fillWidth: true
            }
        }
        PieMemoria {
            estado: estado
            visible: estado.haySeleccion || estado.cerrando || estado.resultadoCierre !== ""
            Layout.fillWidth: true
        }
    }
    HojasMemoria { estado: estado }
}
