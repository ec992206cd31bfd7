import QtQuick
import QtQuick.Window
import Ovanta

/// The window of the panel, without a frame. Its place and size are set from outside; where the desktop
/// blends windows it is rounded and casts a shadow into its own margin.
Window {
    id: ventana
    required property bool transparente
    readonly property int margen: transparente ? 12 : 0
    readonly property int anchoDeseado: 348 + 2 * margen
    readonly property int altoDeseado: Math.ceil(menu.implicitHeight) + 2 * margen
    readonly property real radio: Tema.radioDialogo

    title: "Panel de Ovanta"
    flags: Qt.Tool | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint | Qt.NoDropShadowWindowHint
    color: transparente ? "transparent" : Tema.colores.fondo

    Rectangle {
        anchors.fill: parent
        anchors.margins: ventana.margen
        radius: ventana.radio
        color: Tema.colores.fondo
        border.width: 1
        border.color: Tema.colores.bordeControl
        Sombra {
            visible: ventana.transparente
            radio: ventana.radio
            alcance: 9
            caida: 2
            z: -1
            color: Tema.colores.conOpacidad(Tema.colores.velo, 0.02)
        }
        Flickable {
            id: rollo
            anchors.fill: parent
            contentHeight: menu.implicitHeight
            interactive: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds
            clip: interactive
            MenuView {
                id: menu
                width: rollo.width
                focus: true
                onCerrar: ventana.close()
            }
        }
    }
    onActiveFocusItemChanged: mostrarFoco()

    /// On a low screen the panel scrolls to the button that the keyboard acts on.
    function mostrarFoco() {
        if (!activeFocusItem || !rollo.interactive)
            return;
        const arriba = activeFocusItem.mapToItem(rollo.contentItem, 0, 0).y;
        const fondo = arriba + activeFocusItem.height + Tema.espacio3;
        rollo.contentY = Math.min(Math.max(rollo.contentY, fondo - rollo.height), Math.max(0, arriba - Tema.espacio3));
    }
}
