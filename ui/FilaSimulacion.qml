import QtQuick
import QtQuick.Layouts
import Ovanta

Item {
    id: raiz
    required property string nombre
    required property string texto
    required property bool fallo

    height: Math.max(48, textos.implicitHeight + Tema.espacio3)
    Accessible.role: Accessible.ListItem
    Accessible.name: nombre + ": " + texto
    RowLayout {
        anchors { fill: parent; leftMargin: 2 }
        spacing: Tema.espacio3
        Symbol {
            nombre: raiz.fallo ? "exclamationmark.triangle.fill" : "checkmark.shield.fill"
            tamano: 20
            color: raiz.fallo ? Tema.colores.naranja : Tema.colores.verde
        }
        ColumnLayout {
            id: textos
            spacing: 1
            Texto {
                text: raiz.nombre
                font.weight: Font.DemiBold
                Layout.fillWidth: true
            }
            Nota {
                text: raiz.texto
                wrapMode: Text.Wrap
                color: raiz.fallo ? Tema.colores.naranja : Tema.colores.secundario
                Layout.fillWidth: true
            }
        }
    }
}
