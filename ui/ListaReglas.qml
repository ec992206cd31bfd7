pragma ComponentBehavior: Bound
import QtQuick
import Ovanta

Item {
    id: raiz
    required property SpaceViewEstado estado

    ListaVirtual {
        anchors { fill: parent; leftMargin: Tema.margen; rightMargin: Tema.margen / 2 }
        visible: !raiz.estado.vacio
        model: raiz.estado.filas
        Accessible.name: "Cachés"
        section.property: "categoria"
        delegate: FilaCache {
            estado: raiz.estado
            width: ListView.view.width - Tema.margen / 2
        }
    }
    EstadoVacio {
        anchors.centerIn: parent
        width: parent.width - 2 * Tema.margen
        visible: raiz.estado.vacio && raiz.estado.error === ""
        simbolo: "shippingbox"
        titulo: "Sin cachés medidos"
        mensaje: "Pulsa Volver a medir para analizar los objetivos."
    }
    EstadoVacio {
        anchors.centerIn: parent
        width: parent.width - 2 * Tema.margen
        visible: raiz.estado.vacio && raiz.estado.error !== ""
        simbolo: "exclamationmark.triangle.fill"
        titulo: "Sin cachés medidos"
        mensaje: raiz.estado.error
        tinta: Tema.colores.naranja
    }
}
