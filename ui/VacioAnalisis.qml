import QtQuick
import QtQuick.Layouts
import Ovanta

/// The body of a findings screen that has nothing to list: an analysis runs, or what there is to do.
ColumnLayout {
    id: raiz
    property bool trabajando
    property string titulo
    property string mensaje
    property string icono
    property string accionTitulo
    signal accion

    spacing: Tema.espacio4
    Lupa {
        visible: raiz.trabajando
        Layout.alignment: Qt.AlignHCenter
    }
    ColumnLayout {
        visible: raiz.trabajando
        spacing: Tema.espacio2
        Layout.alignment: Qt.AlignHCenter
        Texto {
            text: "Analizando…"
            font.pixelSize: Tema.letraCabecera + 1
            font.weight: Font.DemiBold
            Layout.alignment: Qt.AlignHCenter
        }
        Texto {
            text: "Puedes seguir usando Ovanta mientras termina."
            color: Tema.colores.secundario
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            Layout.maximumWidth: raiz.width
        }
    }
    EstadoVacio {
        visible: !raiz.trabajando
        simbolo: raiz.icono
        titulo: raiz.titulo
        mensaje: raiz.mensaje
        Layout.fillWidth: true
    }
    Boton {
        visible: !raiz.trabajando && raiz.accionTitulo !== ""
        simbolo: "magnifyingglass"
        text: raiz.accionTitulo
        Layout.alignment: Qt.AlignHCenter
        onClicked: raiz.accion()
    }
}
