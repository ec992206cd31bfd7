import QtQuick
import QtQuick.Layouts
import Ovanta

/// Why some rows have no tick, and where the rest is to be seen.
RowLayout {
    id: raiz
    required property MemoryViewEstado estado

    spacing: Tema.espacio4
    ColumnLayout {
        spacing: Tema.espacio1
        Layout.fillWidth: true
        Nota {
            text: "Las casillas inactivas son procesos del sistema o en segundo plano que Ovanta no cerrará. Los procesos de root (kernel_task, WindowServer) no se pueden medir sin privilegios; consúltalos en el Monitor de Actividad."
            wrapMode: Text.Wrap
            Layout.fillWidth: true
        }
        Rotulo {
            visible: raiz.estado.errorMonitor !== ""
            simbolo: "exclamationmark.triangle.fill"
            texto: raiz.estado.errorMonitor
            color: Tema.colores.naranja
        }
    }
    Boton {
        text: "Abrir el Monitor de Actividad"
        onClicked: raiz.estado.abrirMonitorDeActividad()
    }
}
