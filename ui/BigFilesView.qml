pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Ovanta

/// What weighs most: single files, and folders that their tools make again.
Item {
    id: raiz
    // Inside a row `estado` is the row's own.
    readonly property BigFilesViewEstado reglas: estado
    BigFilesViewEstado { id: estado }

    ColumnLayout {
        anchors { fill: parent; topMargin: Tema.espacio6 }
        spacing: Tema.espacio3
        CabeceraAnalisis {
            estado: estado
            simbolo: "chart.bar.fill"
            titulo: "Lo más pesado"
            subtitulo: "Archivos sueltos y carpetas de dependencias regenerables. Nada se borra sin que lo marques."
            Layout.fillWidth: true
            Layout.leftMargin: Tema.margen
            Layout.rightMargin: Tema.margen
        }
        Segmentado {
            nombre: "Lo más pesado"
            titulos: estado.pestanas
            indice: estado.pestana
            onElegida: indice => estado.pestana = indice
            Layout.fillWidth: true
            Layout.leftMargin: Tema.margen
            Layout.rightMargin: Tema.margen
        }
        ListaConLugar {
            visible: !estado.vacio
            filas: estado.filas
            // A row kept for use again would show what it showed of another tab's list.
            reuseItems: false
            Accessible.name: estado.pestanas[estado.pestana]
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.leftMargin: Tema.margen
            Layout.rightMargin: Tema.margen / 2
            delegate: FilaHallada {
                estado: raiz.reglas
                width: ListView.view.width - Tema.margen / 2
            }
        }
        Item {
            visible: estado.vacio
            Layout.fillWidth: true
            Layout.fillHeight: true
            VacioAnalisis {
                anchors.centerIn: parent
                width: parent.width - 2 * Tema.margen
                trabajando: estado.analizando
                titulo: estado.tituloVacio
                mensaje: estado.mensajeVacio
                icono: estado.simboloVacio
                accionTitulo: estado.textoAnalizar
                onAccion: estado.analizar()
            }
        }
        PieAccion {
            estado: estado
            seleccion: estado.textoMarcados
            titulo: "Mover a la Papelera"
            deshabilitado: !estado.puedeMover
            onAccion: estado.pedirConfirmacion()
            Layout.fillWidth: true
        }
    }
    Confirmacion {
        visible: estado.confirmando
        titulo: estado.tituloConfirmacion
        mensaje: "Todo va a la Papelera. Las carpetas de dependencias se regeneran con npm install, pip install o cargo build."
        simbolo: "trash"
        accion: estado.textoConfirmar
        destructiva: true
        onConfirmada: estado.confirmar()
        onClosed: estado.cancelar()
    }
}
