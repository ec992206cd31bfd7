import QtQuick
import Ovanta

/// The program's icon, or a symbol where its picture is missing.
Item {
    id: raiz
    property url imagen: MarcaOvanta.imagen

    implicitWidth: 42
    implicitHeight: 42
    Accessible.role: Accessible.Graphic
    Accessible.name: "Ovanta de Belmora"
    ImagenVectorial {
        anchors.fill: parent
        fuente: raiz.imagen
    }
    Symbol {
        anchors.centerIn: parent
        visible: raiz.imagen == ""
        nombre: "sparkles"
        tamano: Math.round(raiz.height * 0.8)
        color: Tema.colores.azul
    }
}
