pragma ComponentBehavior: Bound
import QtQuick
import Ovanta

/// The cards in as many columns as fit.
Grid {
    id: raiz
    required property ResumenViewEstado estado
    readonly property int anchoTarjeta: (width - (columns - 1) * spacing) / columns

    columns: width < 3 * 214 ? 2 : 3
    spacing: Tema.espacio4
    Repeater {
        model: raiz.estado.tarjetas
        TarjetaSeccion {
            width: raiz.anchoTarjeta
            onElegida: seccion => raiz.estado.ir(seccion)
        }
    }
}
