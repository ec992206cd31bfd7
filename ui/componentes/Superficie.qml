import QtQuick
import Ovanta

/// The sheet on which cards and lists lie.
Rectangle {
    color: Tema.colores.superficie
    radius: Tema.radioTarjeta
    border.width: 1
    border.color: Tema.colores.borde
    Sombra { z: -1 }
}
