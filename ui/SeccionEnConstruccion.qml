import QtQuick
import Ovanta

/// Stands where a section has no screen yet.
Item {
    MainViewEstado { id: estado }
    EstadoVacio {
        anchors.centerIn: parent
        width: parent.width - 2 * Tema.margen
        simbolo: estado.iconoSeccion
        titulo: estado.tituloSeccion
        mensaje: "Sección en construcción"
        tinta: Tema.colores.azul
    }
}
