import QtQuick
import Ovanta

/// The sheets of the caches screen.
Item {
    id: raiz
    required property SpaceViewEstado estado

    DetalleRegla {
        visible: raiz.estado.muestraDetalle
        detalle: raiz.estado.detalle
        onClosed: raiz.estado.cerrarPresentacion()
    }
    SimulacionLimpiezaView {
        visible: raiz.estado.muestraSimulacion
        simulados: raiz.estado.simulados
        total: raiz.estado.totalSimulado
        onClosed: raiz.estado.cerrarPresentacion()
    }
    Confirmacion {
        visible: raiz.estado.confirmando
        titulo: raiz.estado.tituloConfirmacion
        mensaje: "Nada se elimina: todo va a la Papelera y puedes recuperarlo desde Finder. El espacio se libera al vaciarla."
        simbolo: "trash"
        accion: "Mover a la Papelera"
        onConfirmada: raiz.estado.confirmar()
        onClosed: raiz.estado.cancelar()
    }
}
