import QtQuick
import Ovanta

/// A slider.
AjusteNumerico {
    id: raiz
    readonly property real fraccion: rango.fraccion(valor)
    readonly property real recorrido: width - mando.width

    implicitWidth: 240
    implicitHeight: 28
    Accessible.role: Accessible.Slider

    Rectangle {
        id: carril
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter }
        height: 6
        radius: 3
        color: Tema.colores.pulsado
        border.width: Tema.aspecto.altoContraste ? 1 : 0
        border.color: Tema.colores.bordeControl
        Rectangle {
            width: mando.x + mando.width / 2
            height: parent.height
            radius: parent.radius
            color: Tema.colores.acento
        }
    }
    Rectangle {
        id: mando
        x: raiz.fraccion * raiz.recorrido
        anchors.verticalCenter: parent.verticalCenter
        width: 20
        height: 20
        radius: 10
        color: raton.pressed ? Tema.colores.acento : Tema.colores.sobreAcento
        border.width: 2
        border.color: Tema.colores.acento
        AnilloFoco {
            mostrado: raiz.visualFocus
            radio: 10
        }
    }
    MouseArea {
        id: raton
        anchors.fill: parent
        preventStealing: true
        onPressed: mouse => {
            raiz.enfocarConRaton();
            raiz.arrastrar(mouse.x);
        }
        onPositionChanged: mouse => raiz.arrastrar(mouse.x)
    }

    function arrastrar(x: real) {
        const parte = (x - mando.width / 2) / Math.max(1, recorrido);
        pedir(rango.ajustar(rango.desde + parte * (rango.hasta - rango.desde)));
    }
}
