pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Ovanta

/// A picker: shows `mostrado` and offers `model` in a list. It never changes `indice`, which is -1
/// where what is shown is none of the options: `elegido` tells what the user wants.
T.ComboBox {
    id: raiz
    property string nombre
    property string mostrado
    property int indice
    signal elegido(int indice)

    implicitWidth: 132
    implicitHeight: Tema.altoControl
    leftPadding: 12
    rightPadding: 30
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    opacity: enabled ? 1 : 0.45
    currentIndex: indice
    displayText: mostrado
    onActivated: index => elegido(index)
    Accessible.role: Accessible.ComboBox
    Accessible.name: nombre
    Accessible.description: mostrado
    Accessible.onPressAction: alternarLista()
    Keys.onReleased: event => raiz.abrirConTecla(event)
    Keys.onPressed: event => raiz.pagina(event)

    function alternarLista() {
        if (popup.visible)
            popup.close();
        else if (enabled)
            popup.open();
    }
    /// Return opens the list too; on its release, since that is what takes a choice from an open one.
    function abrirConTecla(event: KeyEvent) {
        if (popup.visible || (event.key !== Qt.Key_Return && event.key !== Qt.Key_Enter))
            return;
        event.accepted = true;
        popup.open();
    }
    function elegirFila(fila: int) {
        popup.close();
        elegido(fila);
    }
    /// The page keys go to the ends: such a list is never longer than a page.
    function pagina(event: KeyEvent) {
        const abajo = event.key === Qt.Key_PageDown;
        if (!abajo && event.key !== Qt.Key_PageUp)
            return;
        event.accepted = true;
        if (!popup.visible)
            return elegido(abajo ? count - 1 : 0);
        for (let i = 0; i < count; ++i) {
            if (abajo)
                incrementCurrentIndex();
            else
                decrementCurrentIndex();
        }
    }

    contentItem: Texto {
        text: raiz.displayText
        font.pixelSize: Tema.letraCuerpo - 1
        font.weight: Font.Medium
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
    indicator: Symbol {
        x: raiz.width - width - 8
        anchors.verticalCenter: parent.verticalCenter
        nombre: "chevron.up.chevron.down"
        tamano: 18
        color: Tema.colores.secundario
    }
    background: Rectangle {
        radius: Tema.radioControl
        color: Tema.colores.superficie
        border.width: 1
        border.color: Tema.colores.bordeControl
        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            visible: raiz.hovered || raiz.down
            color: raiz.down ? Tema.colores.pulsado : Tema.colores.realce
        }
        AnilloFoco { mostrado: raiz.visualFocus }
    }
    delegate: FilaSelector {
        required property string modelData
        required property int index
        width: ListView.view.width
        texto: modelData
        elegida: index === raiz.indice
        resaltada: index === raiz.highlightedIndex
        onClicked: raiz.elegirFila(index)
    }
    popup: T.Popup {
        y: raiz.height + 4
        width: raiz.width
        implicitHeight: contentItem.implicitHeight + 2 * padding
        padding: 4
        margins: Tema.espacio2
        enter: Transition {
            OvantaPanel { property: "opacity"; from: 0; to: 1 }
        }
        background: Superficie { radius: Tema.radioControl + 2 }
        contentItem: ListView {
            implicitHeight: contentHeight
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            model: raiz.delegateModel
            currentIndex: raiz.highlightedIndex
            highlightMoveDuration: 0
            Accessible.role: Accessible.List
            Accessible.name: raiz.nombre
        }
    }
}
