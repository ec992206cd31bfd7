import QtQuick
import QtQuick.Layouts
import Ovanta

/// A copy, in the card of its group: the first row carries the card's head, the last its end.
Item {
    id: raiz
    required property DuplicatesViewEstado estado
    required property int index
    required property string nombre
    required property string carpeta
    required property bool marcable
    required property bool marcada
    required property bool masAntigua
    required property bool mismoArchivo
    required property bool abreGrupo
    required property bool cierraGrupo
    required property string cabeza
    required property string extra
    required property string titulo
    readonly property int altoCabeza: abreGrupo ? 64 : 0
    readonly property int hueco: cierraGrupo ? Tema.espacio3 : 0

    height: altoCabeza + 54 + hueco
    Accessible.role: Accessible.ListItem
    Accessible.name: nombre
    Keys.onSpacePressed: raiz.estado.marcar(raiz.index, !raiz.marcada)

    Item {
        anchors { fill: parent; bottomMargin: raiz.hueco }
        clip: true
        Rectangle {
            anchors { fill: parent; topMargin: raiz.abreGrupo ? 0 : -radius; bottomMargin: raiz.cierraGrupo ? 0 : -radius }
            radius: Tema.radioTarjeta
            color: Tema.colores.superficie
            border.width: 1
            border.color: Tema.colores.borde
        }
    }
    CabezaGrupo {
        visible: raiz.abreGrupo
        anchors { left: parent.left; right: parent.right; top: parent.top; leftMargin: Tema.espacio4; rightMargin: Tema.espacio3 }
        height: raiz.altoCabeza
        cabeza: raiz.cabeza
        extra: raiz.extra
        titulo: raiz.titulo
        onMarcarTodas: raiz.estado.marcarTodasMenosLaOriginal(raiz.index)
    }
    Item {
        id: cuerpo
        anchors { fill: parent; topMargin: raiz.altoCabeza; bottomMargin: raiz.hueco }
        Rectangle {
            anchors { left: parent.left; right: parent.right; top: parent.top; leftMargin: Tema.espacio4; rightMargin: Tema.espacio4 }
            height: 1
            color: Tema.colores.borde
        }
        Rectangle {
            anchors { fill: parent; margins: 4 }
            radius: Tema.radioControl
            color: raiz.marcada ? Tema.colores.conOpacidad(Tema.colores.azul, 0.1) : "transparent"
            AnilloFoco {
                mostrado: raiz.activeFocus
                anchors.margins: 0
            }
        }
        RowLayout {
            anchors { fill: parent; leftMargin: Tema.espacio4; rightMargin: Tema.espacio2 }
            spacing: Tema.espacio3
            Casilla {
                nombre: raiz.nombre
                enabled: raiz.marcable
                checked: raiz.marcada
                Accessible.description: raiz.carpeta
                onToggled: raiz.estado.marcar(raiz.index, checked)
            }
            TextosHallado {
                nombre: raiz.nombre
                lugar: raiz.carpeta
                Layout.fillWidth: true
            }
            Insignia {
                visible: raiz.masAntigua
                texto: "más antigua"
                tinta: Tema.colores.verde
            }
            Insignia {
                visible: raiz.mismoArchivo
                texto: "mismo archivo físico"
                tinta: Tema.colores.azul
            }
            Boton {
                variante: Boton.Sencillo
                text: "Finder"
                Accessible.description: raiz.nombre
                onClicked: raiz.estado.mostrarEnGestor(raiz.index)
            }
        }
    }
}
