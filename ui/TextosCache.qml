import QtQuick
import QtQuick.Layouts
import Ovanta

ColumnLayout {
    id: raiz
    property string nombre
    property string ruta
    property string modo
    property string insignia
    property int tinteInsignia

    spacing: 1
    RowLayout {
        spacing: Tema.espacio2
        Texto {
            text: raiz.nombre
            font.weight: Font.DemiBold
            Layout.fillWidth: true
            Layout.maximumWidth: implicitWidth + 1
        }
        Insignia {
            texto: raiz.insignia
            tinta: Tema.colores.tinta(raiz.tinteInsignia)
        }
        Item { Layout.fillWidth: true }
    }
    Nota {
        text: raiz.ruta
        elide: Text.ElideMiddle
        Layout.fillWidth: true
    }
    Nota {
        text: raiz.modo
        font.pixelSize: Tema.letraNota - 1
        Layout.fillWidth: true
    }
}
