import QtQuick
import QtQuick.Layouts
import Ovanta

/// What is ticked, what is being closed, and what the last closing did.
Rectangle {
    id: raiz
    required property MemoryViewEstado estado

    implicitHeight: columna.implicitHeight + 2 * Tema.espacio3
    color: Tema.colores.superficie
    Rectangle {
        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: 1
        color: Tema.colores.borde
    }
    ColumnLayout {
        id: columna
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; leftMargin: Tema.margen; rightMargin: Tema.margen }
        spacing: Tema.espacio2
        ResultadoMemoria {
            estado: raiz.estado
            visible: raiz.estado.resultadoCierre !== "" && !raiz.estado.cerrando
            Layout.fillWidth: true
        }
        RowLayout {
            visible: raiz.estado.cerrando || raiz.estado.haySeleccion
            spacing: Tema.espacio3
            Actividad { visible: raiz.estado.cerrando }
            Texto {
                text: raiz.estado.cerrando ? "Esperando a que las apps se cierren…" : ""
                color: Tema.colores.secundario
                Layout.fillWidth: true
            }
            Boton {
                visible: raiz.estado.haySeleccion
                enabled: !raiz.estado.cerrando
                variante: Boton.Primario
                text: raiz.estado.textoCerrar
                onClicked: raiz.estado.pedirCierre()
            }
        }
    }
}
