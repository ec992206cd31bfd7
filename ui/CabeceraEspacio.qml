import QtQuick
import QtQuick.Layouts
import Ovanta

ColumnLayout {
    id: raiz
    required property SpaceViewEstado estado

    spacing: Tema.espacio4
    RowLayout {
        spacing: Tema.espacio4
        Cabecera {
            simbolo: "externaldrive.fill"
            titulo: "Cachés"
            subtitulo: "Revisa archivos regenerables antes de moverlos"
            Layout.fillWidth: true
        }
        ColumnLayout {
            spacing: Tema.espacio1
            Layout.fillWidth: false
            Rotulo {
                simbolo: "checkmark.shield"
                texto: raiz.estado.seguros
                color: Tema.colores.verde
                letra: Tema.letraCuerpo
                grosor: Font.DemiBold
                Layout.alignment: Qt.AlignRight
            }
            Rotulo {
                simbolo: "list.bullet"
                texto: raiz.estado.encontrados
                Layout.alignment: Qt.AlignRight
            }
        }
    }
    RowLayout {
        spacing: Tema.espacio2
        Interruptor {
            text: "Ocultar los vacíos"
            checked: raiz.estado.soloConTamano
            onToggled: raiz.estado.soloConTamano = checked
        }
        Item { Layout.fillWidth: true }
        Actividad { visible: raiz.estado.midiendo }
        Nota {
            visible: raiz.estado.midiendo
            text: "Midiendo"
            Layout.rightMargin: Tema.espacio2
        }
        Boton {
            text: "Marcar los seguros"
            onClicked: raiz.estado.marcarSeguros()
        }
        Boton {
            text: "Desmarcar todo"
            onClicked: raiz.estado.desmarcarTodo()
        }
        Boton {
            simbolo: "arrow.clockwise"
            text: "Volver a medir"
            enabled: !raiz.estado.midiendo
            onClicked: raiz.estado.volverAMedir()
        }
    }
}
