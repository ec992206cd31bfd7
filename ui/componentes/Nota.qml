import QtQuick
import Ovanta

/// A quiet, small text.
Texto {
    color: Tema.colores.secundario
    font.pixelSize: Tema.letraNota
}
