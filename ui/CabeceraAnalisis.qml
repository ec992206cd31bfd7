import QtQuick
import QtQuick.Layouts
import Ovanta

/// The head of a findings screen: what it shows, the way to an analysis, and how far one is.
ColumnLayout {
    id: raiz
    required property HallazgosEstado estado
    property string simbolo
    property string titulo
    property string subtitulo
    property string valor

    spacing: Tema.espacio3
    RowLayout {
        spacing: Tema.espacio4
        Cabecera {
            simbolo: raiz.simbolo
            titulo: raiz.titulo
            subtitulo: raiz.subtitulo
            Layout.fillWidth: true
            Layout.alignment: Qt.AlignTop
        }
        Boton {
            variante: Boton.Primario
            simbolo: "magnifyingglass"
            text: raiz.estado.textoAnalizar
            enabled: !raiz.estado.analizando
            Layout.alignment: Qt.AlignTop
            onClicked: raiz.estado.analizar()
        }
    }
    RowLayout {
        visible: raiz.valor !== "" || raiz.estado.analizando
        spacing: Tema.espacio3
        Layout.preferredHeight: Tema.altoControl
        Rotulo {
            visible: raiz.valor !== ""
            simbolo: "externaldrive.fill"
            texto: raiz.valor
            color: Tema.colores.naranja
            letra: Tema.letraCuerpo
            grosor: Font.DemiBold
            Layout.fillWidth: true
        }
        Item {
            visible: raiz.valor === ""
            Layout.fillWidth: true
        }
        Actividad { visible: raiz.estado.analizando }
        Nota {
            visible: raiz.estado.analizando
            text: raiz.estado.progreso
            Layout.maximumWidth: 300
        }
        Boton {
            visible: raiz.estado.analizando
            text: raiz.estado.deteniendo ? "Deteniendo" : "Detener"
            enabled: !raiz.estado.deteniendo
            onClicked: raiz.estado.detener()
        }
    }
}
