import QtQuick
import QtQuick.Layouts
import Ovanta

/// How much was written out to the disk, and whether that goes on.
Superficie {
    id: raiz
    required property MemoryViewEstado estado

    implicitHeight: columna.implicitHeight + 2 * Tema.espacio4
    ColumnLayout {
        id: columna
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; margins: Tema.espacio4 }
        spacing: Tema.espacio2
        RowLayout {
            spacing: Tema.espacio3
            Texto {
                text: "Swap"
                font.pixelSize: Tema.letraCabecera
                font.weight: Font.DemiBold
                Layout.fillWidth: true
                Accessible.role: Accessible.Heading
            }
            Texto {
                text: raiz.estado.swap
                font.weight: Font.DemiBold
            }
        }
        BarraProgreso {
            valor: raiz.estado.fraccionSwap
            tinta: Tema.colores.forma(raiz.estado.tinteSwap)
            implicitHeight: 8
            Layout.fillWidth: true
            Layout.bottomMargin: Tema.espacio1
            Accessible.role: Accessible.ProgressBar
            Accessible.name: "Swap"
            Accessible.description: raiz.estado.swap
        }
        Rotulo {
            simbolo: raiz.estado.simboloActividad
            texto: raiz.estado.actividadSwap
            color: Tema.colores.tinta(raiz.estado.tinteActividad)
            letra: Tema.letraCuerpo - 1
            Layout.fillWidth: true
        }
        Nota {
            text: "El swap vive en el SSD y sigue ocupando disco aunque la memoria se libere: solo se vacía del todo al reiniciar."
            wrapMode: Text.Wrap
            Layout.fillWidth: true
        }
    }
}
