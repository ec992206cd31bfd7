import QtQuick
import QtQuick.Layouts
import Ovanta

/// A rule of the catalogue.
Item {
    id: raiz
    required property SpaceViewEstado estado
    required property string clave
    required property string nombre
    required property string ruta
    required property string modo
    required property string tamano
    required property string insignia
    required property int tinteInsignia
    required property bool existe
    required property bool marcable
    required property bool marcada
    readonly property bool abreGrupo: ListView.section !== ListView.previousSection

    height: 76 + cabeza.height
    Accessible.role: Accessible.ListItem
    Accessible.name: nombre
    Keys.onSpacePressed: raiz.estado.marcar(raiz.clave, !raiz.marcada)

    TituloGrupo {
        id: cabeza
        width: parent.width
        titulo: raiz.ListView.section
        mostrado: raiz.abreGrupo
    }
    Rectangle {
        anchors { fill: parent; topMargin: cabeza.height + 3; bottomMargin: 3 }
        radius: Tema.radioTarjeta - 2
        color: Tema.colores.superficie
        border.width: raiz.marcada ? 2 : 1
        border.color: raiz.marcada ? Tema.colores.conOpacidad(Tema.colores.azul, 0.65) : Tema.colores.borde
        AnilloFoco {
            mostrado: raiz.activeFocus
            radio: Tema.radioTarjeta - 2
            anchors.margins: 0
        }
    }
    RowLayout {
        anchors { fill: parent; topMargin: cabeza.height; leftMargin: Tema.espacio4; rightMargin: Tema.espacio3 }
        spacing: Tema.espacio3
        Interruptor {
            nombre: raiz.nombre
            enabled: raiz.marcable
            checked: raiz.marcada
            onToggled: raiz.estado.marcar(raiz.clave, checked)
        }
        TextosCache {
            nombre: raiz.nombre
            ruta: raiz.ruta
            modo: raiz.modo
            insignia: raiz.insignia
            tinteInsignia: raiz.tinteInsignia
            Layout.fillWidth: true
        }
        Texto {
            text: raiz.tamano
            font.weight: raiz.existe ? Font.DemiBold : Font.Normal
            color: raiz.existe ? Tema.colores.texto : Tema.colores.secundario
            horizontalAlignment: Text.AlignRight
            Layout.preferredWidth: 82
        }
        Boton {
            variante: Boton.Sencillo
            text: "Detalles"
            Accessible.description: raiz.nombre
            onClicked: raiz.estado.verDetalle(raiz.clave)
        }
        Boton {
            variante: Boton.Sencillo
            text: "Finder"
            Accessible.description: raiz.nombre
            Layout.leftMargin: -Tema.espacio3
            onClicked: raiz.estado.mostrarEnGestor(raiz.clave)
        }
    }
}
