import QtQuick
import Ovanta

/// One half of a stepper. It goes on while it is held; keyboard and assistive technology have the
/// whole.
Item {
    id: raiz
    property string simbolo
    signal pulsada

    Rectangle {
        anchors { fill: parent; margins: 2 }
        radius: Tema.radioControl - 2
        visible: raton.containsMouse && raiz.enabled
        color: raton.pressed ? Tema.colores.pulsado : Tema.colores.realce
    }
    Symbol {
        anchors.centerIn: parent
        nombre: raiz.simbolo
        tamano: 18
        opacity: raiz.enabled ? 1 : 0.35
    }
    MouseArea {
        id: raton
        anchors.fill: parent
        hoverEnabled: true
        preventStealing: true
        onPressed: raiz.pulsada()
    }
    Timer {
        interval: espera ? 400 : 90
        repeat: true
        running: raton.pressed && raiz.enabled
        property bool espera: true
        onRunningChanged: espera = true
        onTriggered: {
            espera = false;
            raiz.pulsada();
        }
    }
}
