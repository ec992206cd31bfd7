import QtQuick
import Ovanta

Window {
    title: "Ovanta"
    width: 1000
    height: 700
    visible: true
    Text { anchors.centerIn: parent; text: Ovanta.navegacion.seleccion }
}
