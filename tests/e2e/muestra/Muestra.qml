import QtQuick

Window {
    id: ventana
    property int veces: 0
    title: "Ovanta"
    width: 400
    height: 300
    visible: true
    color: "#204060"

    component Control: Rectangle {
        property string nombre
        property bool marcado: false
        signal accionado
        width: 200
        height: 40
        color: marcado ? "green" : "gray"
        Accessible.name: nombre
        Accessible.onPressAction: accionado()
        Accessible.onToggleAction: accionado()
    }

    Column {
        Control {
            nombre: "Contar"
            Accessible.role: Accessible.Button
            onAccionado: ventana.veces += 1
        }
        Control {
            id: interruptor
            nombre: "Opción"
            Accessible.role: Accessible.CheckBox
            Accessible.checkable: true
            Accessible.checked: marcado
            onAccionado: marcado = !marcado
        }
        Control {
            nombre: "Vaciar"
            Accessible.role: Accessible.Button
            onAccionado: contenido.visible = false
        }
        Text {
            id: contenido
            text: "Veces: " + ventana.veces
            color: "white"
            font.pixelSize: 30
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
