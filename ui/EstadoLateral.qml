import QtQuick
import QtQuick.Layouts
import Ovanta

/// The level's symbol and the free space.
Rectangle {
    id: raiz
    required property MainViewEstado estado

    implicitHeight: columna.implicitHeight + 2 * Tema.espacio3
    radius: Tema.radioControl + 2
    color: Tema.colores.superficie
    border.width: 1
    border.color: Tema.colores.borde
    ColumnLayout {
        id: columna
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; margins: Tema.espacio3 }
        spacing: Tema.espacio2
        RowLayout {
            spacing: Tema.espacio2
            Symbol {
                nombre: raiz.estado.simboloNivel
                tamano: 18
                color: Tema.colores.tinta(raiz.estado.tinteNivel)
            }
            Texto {
                text: raiz.estado.libres
                font.pixelSize: Tema.letraCuerpo - 1
                font.weight: Font.DemiBold
                Layout.fillWidth: true
            }
        }
        BarraProgreso {
            Layout.fillWidth: true
            implicitHeight: 5
            valor: raiz.estado.fraccionUsada
            tinta: Tema.colores.forma(raiz.estado.tinteNivel)
        }
    }
}
