import QtQuick
import QtQuick.Layouts
import Ovanta

RowLayout {
    id: raiz
    required property ResumenViewEstado estado

    Cabecera {
        titulo: "Ovanta"
        subtitulo: "Analiza tu Mac de forma segura"
        Layout.fillWidth: true
    }
    Rotulo {
        simbolo: "clock"
        texto: raiz.estado.ultimoAnalisis
        Layout.alignment: Qt.AlignBottom
        Layout.bottomMargin: 2
    }
}
