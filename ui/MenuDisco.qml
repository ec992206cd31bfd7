import QtQuick
import QtQuick.Layouts
import Ovanta

/// The disk: how much is free, whether that is enough, and when it was read.
Superficie {
    id: raiz
    required property MenuViewEstado estado
    readonly property color tinta: Tema.colores.tinta(estado.tinteNivel)

    implicitHeight: columna.implicitHeight + 2 * Tema.espacio3
    ColumnLayout {
        id: columna
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; margins: Tema.espacio3 }
        spacing: Tema.espacio2
        RowLayout {
            spacing: Tema.espacio3
            Rectangle {
                implicitWidth: 44
                implicitHeight: 44
                radius: 12
                color: Tema.colores.conOpacidad(raiz.tinta, 0.12)
                Symbol {
                    anchors.centerIn: parent
                    nombre: raiz.estado.simboloNivel
                    tamano: 25
                    color: raiz.tinta
                }
            }
            ColumnLayout {
                spacing: 1
                Texto {
                    text: raiz.estado.libres
                    font.pixelSize: Tema.letraCifra
                    font.weight: Font.Bold
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: Tema.letraCuerpo
                    Layout.fillWidth: true
                    Accessible.role: Accessible.Heading
                }
                Texto {
                    text: raiz.estado.textoNivel
                    color: raiz.tinta
                    font.pixelSize: Tema.letraCuerpo - 1
                    font.weight: Font.DemiBold
                    Layout.fillWidth: true
                }
            }
        }
        BarraProgreso {
            valor: raiz.estado.fraccionUsada
            tinta: Tema.colores.forma(raiz.estado.tinteNivel)
            Layout.fillWidth: true
            Layout.topMargin: 2
        }
        ColumnLayout {
            spacing: 2
            RowLayout {
                Nota {
                    text: raiz.estado.usado
                    Layout.fillWidth: true
                }
                Nota { text: raiz.estado.ultimaLectura }
            }
            Nota {
                text: raiz.estado.umbrales
                Layout.fillWidth: true
            }
        }
    }
}
