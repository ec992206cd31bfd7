import QtQuick
import QtQuick.Layouts
import Ovanta

/// How short the machine is of memory, in words and as a bar.
Superficie {
    id: raiz
    required property MemoryViewEstado estado
    readonly property color tinta: Tema.colores.tinta(estado.tinte)

    implicitHeight: fila.implicitHeight + 2 * Tema.espacio4
    RowLayout {
        id: fila
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; margins: Tema.espacio4 }
        spacing: Tema.espacio4
        Rectangle {
            implicitWidth: 44
            implicitHeight: 44
            radius: 22
            color: Tema.colores.conOpacidad(raiz.tinta, 0.12)
            Symbol {
                anchors.centerIn: parent
                nombre: raiz.estado.simbolo
                tamano: 24
                color: raiz.tinta
            }
        }
        ColumnLayout {
            spacing: 2
            Layout.fillWidth: true
            RowLayout {
                spacing: Tema.espacio3
                Texto {
                    text: raiz.estado.etiqueta
                    color: raiz.tinta
                    font.pixelSize: Tema.letraCabecera + 1
                    font.weight: Font.Bold
                    Layout.fillWidth: true
                }
                Texto {
                    text: raiz.estado.porcentaje
                    color: raiz.tinta
                    font.pixelSize: Tema.letraCabecera + 1
                    font.weight: Font.Bold
                }
            }
            Texto {
                text: raiz.estado.explicacion
                color: Tema.colores.secundario
                font.pixelSize: Tema.letraCuerpo - 1
                wrapMode: Text.Wrap
                Layout.fillWidth: true
            }
            BarraProgreso {
                valor: raiz.estado.presion
                tinta: Tema.colores.forma(raiz.estado.tinte)
                implicitHeight: 8
                Layout.fillWidth: true
                Layout.topMargin: Tema.espacio2
                Accessible.role: Accessible.ProgressBar
                Accessible.name: raiz.estado.etiqueta
                Accessible.description: raiz.estado.porcentaje
            }
        }
    }
}
