pragma Singleton
import QtQuick
import Ovanta

/// The measures of the look; the colours follow the desktop. Nothing else names a size or a colour.
QtObject {
    readonly property Aspecto aspecto: Ovanta.aspecto
    readonly property colores colores: aspecto.colores
    readonly property bool movimientoReducido: aspecto.movimientoReducido

    readonly property int espacio1: 4
    readonly property int espacio2: 8
    readonly property int espacio3: 12
    readonly property int espacio4: 16
    readonly property int espacio6: 24
    readonly property int margen: 28

    readonly property int radioControl: 8
    readonly property int radioTarjeta: 14
    readonly property int radioDialogo: 18

    readonly property string familia: aspecto.familia
    readonly property string familiaSimbolos: aspecto.familiaSimbolos
    readonly property int letraNota: 12
    readonly property int letraCuerpo: 14
    readonly property int letraCabecera: 16
    readonly property int letraCifra: 22
    readonly property int letraTitulo: 26
    readonly property int letraGrande: 34

    readonly property int altoControl: 34
    readonly property int anchoFoco: 2
}
