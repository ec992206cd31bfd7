import QtQuick
import Ovanta

/// Lets its content appear: it fades in and rises a little, each `indice` a bit later than the one
/// before. With reduced motion it simply shows.
Item {
    id: raiz
    property int indice
    property bool aparecido: false
    default property alias contenido: interior.data

    implicitWidth: interior.childrenRect.width
    implicitHeight: interior.childrenRect.height
    Component.onCompleted: aparecido = true
    Item {
        id: interior
        width: parent.width
        height: parent.height
        opacity: raiz.aparecido ? 1 : 0
        y: raiz.aparecido || Tema.movimientoReducido ? 0 : 10
        Behavior on opacity {
            SequentialAnimation {
                PauseAnimation { duration: Tema.movimientoReducido ? 0 : raiz.indice * 50 }
                OvantaPanel {}
            }
        }
        Behavior on y {
            SequentialAnimation {
                PauseAnimation { duration: Tema.movimientoReducido ? 0 : raiz.indice * 50 }
                OvantaPanel {}
            }
        }
    }
}
