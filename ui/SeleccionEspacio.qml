import QtQuick
import QtQuick.Layouts
import Ovanta

/// The left of the foot: what is moving, what is ticked, or that nothing is lost.
Item {
    id: raiz
    required property SpaceViewEstado estado

    implicitHeight: 40
    RowLayout {
        anchors.fill: parent
        visible: raiz.estado.trabajando
        spacing: Tema.espacio3
        Actividad {}
        Texto {
            text: raiz.estado.progreso
            Layout.fillWidth: true
        }
    }
    RowLayout {
        anchors.fill: parent
        visible: !raiz.estado.trabajando && !raiz.estado.haySeleccion
        spacing: Tema.espacio3
        Symbol {
            nombre: "checkmark.shield.fill"
            tamano: 24
            color: Tema.colores.verde
        }
        LineasPie {
            principal: "Nada se elimina: todo va a la Papelera"
            nota: "Puedes recuperarlo desde Finder"
            Layout.fillWidth: true
        }
    }
    RowLayout {
        anchors.fill: parent
        visible: !raiz.estado.trabajando && raiz.estado.haySeleccion
        spacing: Tema.espacio3
        LineasPie {
            principal: raiz.estado.textoSeleccion + " · " + raiz.estado.tamanoSeleccion
            nota: "Podrás recuperarlo desde Finder"
            Layout.fillWidth: true
        }
    }
}
