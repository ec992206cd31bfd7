import QtQuick
import Ovanta

/// What slider and stepper share. They show `valor` and never change it: `movido` tells what the user
/// wants. Arrows move by a step, page keys by five, Home and End go to the ends; the wheel belongs to
/// the page around them. (No template control: those tell assistive technology a role of their own.)
Item {
    id: raiz
    property string nombre
    property rango rango
    property real valor
    signal movido(real valor)

    /// Assistive technology reads and writes these.
    property real value: valor
    readonly property real minimumValue: rango.desde
    readonly property real maximumValue: rango.hasta
    readonly property real stepSize: rango.paso
    onValueChanged: {
        if (value === valor)
            return;
        pedir(rango.ajustar(value));
        value = Qt.binding(() => raiz.valor);
    }

    /// Whether the focus is to be shown: not where it came by the mouse.
    readonly property bool visualFocus: activeFocus && !conRaton
    property bool conRaton
    onActiveFocusChanged: {
        if (!activeFocus)
            conRaton = false;
    }

    activeFocusOnTab: true
    opacity: enabled ? 1 : 0.45
    Accessible.name: nombre
    Accessible.focusable: true
    Accessible.onIncreaseAction: mover(1)
    Accessible.onDecreaseAction: mover(-1)
    Keys.onPressed: event => raiz.tecla(event)

    function enfocarConRaton() {
        conRaton = true;
        forceActiveFocus(Qt.MouseFocusReason);
    }
    function pedir(nuevo: real) {
        if (enabled && nuevo !== valor)
            movido(nuevo);
    }
    function mover(pasos: int) {
        pedir(rango.mover(valor, pasos));
    }
    function tecla(event: KeyEvent) {
        const pasos = {
            [Qt.Key_Left]: -1,
            [Qt.Key_Down]: -1,
            [Qt.Key_Right]: 1,
            [Qt.Key_Up]: 1,
            [Qt.Key_PageDown]: -5,
            [Qt.Key_PageUp]: 5
        };
        if (event.key === Qt.Key_Home)
            pedir(rango.desde);
        else if (event.key === Qt.Key_End)
            pedir(rango.ultimo());
        else if (event.key in pasos)
            mover(pasos[event.key]);
        else
            return;
        conRaton = false;
        event.accepted = true;
    }
}
