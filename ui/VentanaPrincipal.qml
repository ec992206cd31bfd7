import QtQuick
import QtQuick.Window
import Ovanta

Window {
    id: ventana
    title: "Ovanta"
    width: 1000
    height: 700
    minimumWidth: 900
    minimumHeight: 660
    visible: true
    color: Tema.colores.fondo

    MainView {
        anchors.fill: parent
        onCerrar: ventana.close()
    }
}
