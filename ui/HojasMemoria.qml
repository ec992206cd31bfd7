import QtQuick
import Ovanta

/// The questions before something is closed, forced or restarted.
Item {
    id: raiz
    required property MemoryViewEstado estado

    Confirmacion {
        visible: raiz.estado.confirmandoCierre
        titulo: "¿Cerrar las aplicaciones seleccionadas?"
        mensaje: "macOS enviará la orden normal de cierre. Cada app puede pedirte guardar cambios antes de salir."
        accion: "Cerrar apps normalmente"
        onConfirmada: raiz.estado.confirmarCierre()
        onClosed: raiz.estado.cancelarCierre()
    }
    Confirmacion {
        visible: raiz.estado.confirmandoForzar
        titulo: "¿Forzar la salida?"
        mensaje: "Es lo mismo que «Forzar salida» de macOS (⌥⌘⎋): la app se cierra aunque no quiera y pierde lo que no hayas guardado."
        accion: "Forzar salida"
        destructiva: true
        onConfirmada: raiz.estado.confirmarForzar()
        onClosed: raiz.estado.cancelarForzar()
    }
    Confirmacion {
        visible: raiz.estado.confirmandoReinicio
        titulo: "¿Reiniciar el Mac?"
        mensaje: "Es la única forma de vaciar el swap. macOS te pedirá confirmar y cada app podrá guardar sus cambios."
        accion: "Reiniciar…"
        onConfirmada: raiz.estado.confirmarReinicio()
        onClosed: raiz.estado.cancelarReinicio()
    }
}
