import QtQuick
import Ovanta

/// A stepper: the number itself stands in the text beside it.
AjusteNumerico {
    id: raiz
    implicitWidth: 72
    implicitHeight: 28
    Accessible.role: Accessible.SpinBox

    Rectangle {
        anchors.fill: parent
        radius: Tema.radioControl
        color: Tema.colores.superficie
        border.width: 1
        border.color: Tema.colores.bordeControl
        AnilloFoco { mostrado: raiz.visualFocus }
    }
    MitadContador {
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom; right: centro.left }
        simbolo: "minus"
        enabled: raiz.valor > raiz.rango.desde
        onPulsada: raiz.pulsar(-1)
    }
    Rectangle {
        id: centro
        anchors { horizontalCenter: parent.horizontalCenter; top: parent.top; bottom: parent.bottom; topMargin: 6; bottomMargin: 6 }
        width: 1
        color: Tema.colores.bordeControl
    }
    MitadContador {
        anchors { left: centro.right; top: parent.top; bottom: parent.bottom; right: parent.right }
        simbolo: "plus"
        enabled: raiz.valor < raiz.rango.ultimo()
        onPulsada: raiz.pulsar(1)
    }

    function pulsar(pasos: int) {
        raiz.enfocarConRaton();
        raiz.mover(pasos);
    }
}
