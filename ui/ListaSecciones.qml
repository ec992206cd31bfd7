pragma ComponentBehavior: Bound
import QtQuick
import Ovanta

/// The sections. Arrows choose, as a click does; the focus shows once a key was used.
ListaLateral {
    id: raiz
    required property MainViewEstado estado
    property bool conTeclado

    model: estado.secciones
    currentIndex: estado.fila
    activeFocusOnTab: true
    focus: true
    keyNavigationEnabled: false
    Accessible.role: Accessible.List
    Accessible.name: "Secciones"
    onActiveFocusChanged: conTeclado = activeFocus && conTeclado
    Keys.onPressed: event => raiz.mover(event)

    delegate: FilaLateral {
        conFoco: raiz.activeFocus && raiz.conTeclado
        width: raiz.width
        onElegida: raiz.estado.seleccionar(index)
    }

    function mover(event: KeyEvent) {
        const pasos = { [Qt.Key_Up]: -1, [Qt.Key_Down]: 1, [Qt.Key_Home]: -count, [Qt.Key_End]: count };
        conTeclado = true;
        if (!(event.key in pasos))
            return;
        estado.seleccionar(Math.min(count - 1, Math.max(0, estado.fila + pasos[event.key])));
        event.accepted = true;
    }
}
