pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Ovanta

/// What can be done now, the most pressing first.
ColumnLayout {
    id: raiz
    required property MemoryViewEstado estado

    spacing: Tema.espacio2
    Texto {
        text: "Qué puedes hacer"
        font.pixelSize: Tema.letraCabecera
        font.weight: Font.DemiBold
        Layout.fillWidth: true
        Layout.topMargin: Tema.espacio2
        Accessible.role: Accessible.Heading
    }
    Repeater {
        model: raiz.estado.recomendaciones
        delegate: FilaRecomendacion {
            Layout.fillWidth: true
            onElegida: clave => raiz.estado.seguir(clave)
        }
    }
}
