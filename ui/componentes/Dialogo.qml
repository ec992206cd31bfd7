import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Ovanta

/// A sheet over the window, which waits below a veil. Esc dismisses it, Tab stays inside, and the
/// focus starts on `focoInicial`.
T.Popup {
    id: raiz
    property string titulo
    property Item focoInicial
    default property alias contenido: cuerpo.data
    property alias botones: pie.data

    parent: T.Overlay.overlay
    x: Math.round((parent.width - width) / 2)
    y: Math.round((parent.height - height) / 2)
    width: Math.min(520, parent.width - 2 * Tema.margen)
    implicitHeight: Math.min(hoja.implicitHeight, parent.height - 2 * Tema.espacio6 - 2 * padding) + 2 * padding
    padding: Tema.espacio6
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape
    onOpened: focoInicial.forceActiveFocus(Qt.TabFocusReason)

    T.Overlay.modal: Rectangle { color: Tema.colores.velo }
    enter: Transition {
        OvantaPanel { property: "opacity"; from: 0; to: 1 }
        OvantaPanel { property: "scale"; from: Tema.movimientoReducido ? 1 : 0.96; to: 1 }
    }
    exit: Transition {
        OvantaPanel { property: "opacity"; to: 0 }
    }
    background: Superficie { radius: Tema.radioDialogo }
    ColumnLayout {
        id: hoja
        width: raiz.availableWidth
        spacing: Tema.espacio3
        Accessible.role: Accessible.Dialog
        Accessible.name: raiz.titulo
        Texto {
            text: raiz.titulo
            visible: text !== ""
            font.pixelSize: Tema.letraCabecera + 2
            font.weight: Font.Bold
            wrapMode: Text.Wrap
            Layout.fillWidth: true
            Accessible.role: Accessible.Heading
        }
        ColumnLayout {
            id: cuerpo
            spacing: Tema.espacio3
            Layout.fillWidth: true
            Layout.fillHeight: true
        }
        RowLayout {
            id: pie
            spacing: Tema.espacio2
            Layout.topMargin: Tema.espacio2
            Layout.alignment: Qt.AlignRight
        }
    }
}
