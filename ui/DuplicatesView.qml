pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Ovanta

/// Files with the same content: what may go is marked, the original of each group always stays.
Item {
    id: raiz
    // Inside a row `estado` is the row's own.
    readonly property DuplicatesViewEstado reglas: estado
    DuplicatesViewEstado { id: estado }

    ColumnLayout {
        anchors { fill: parent; topMargin: Tema.espacio6 }
        spacing: Tema.espacio3
        CabeceraAnalisis {
            estado: estado
            simbolo: "doc.on.doc"
            titulo: "Duplicados"
            subtitulo: "Mismo contenido byte a byte. Los enlaces físicos se descuentan; en clones APFS el tamaño extra es lógico y no equivale al espacio físico que recuperarás."
            valor: estado.valor
            Layout.fillWidth: true
            Layout.leftMargin: Tema.margen
            Layout.rightMargin: Tema.margen
        }
        ResultadoHallazgos {
            estado: estado
            Layout.fillWidth: true
            Layout.leftMargin: Tema.margen
            Layout.rightMargin: Tema.margen
        }
        ListaConLugar {
            visible: !estado.vacio
            filas: estado.filas
            Accessible.name: "Duplicados"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.leftMargin: Tema.margen
            Layout.rightMargin: Tema.margen / 2
            delegate: FilaCopia {
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
        PieDuplicados {
            visible: estado.hayMarcadas
            estado: estado
            Layout.fillWidth: true
        }
    }
    Confirmacion {
        visible: estado.confirmando
        titulo: estado.tituloConfirmacion
        mensaje: "Va a la Papelera, no se elimina. De cada grupo se conserva al menos una copia. Si son clones APFS, el espacio físico liberado puede ser menor que el tamaño lógico mostrado."
        simbolo: "trash"
        accion: "Mover a la Papelera"
        destructiva: true
        onConfirmada: estado.confirmar()
        onClosed: estado.cancelar()
    }
}
