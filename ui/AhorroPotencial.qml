import QtQuick
import QtQuick.Layouts
import Ovanta

ColumnLayout {
    id: raiz
    required property ResumenViewEstado estado

    spacing: Tema.espacio1
    Texto {
        text: "Ahorro potencial (estimación)"
        font.pixelSize: Tema.letraCuerpo - 1
        font.weight: Font.DemiBold
        color: Tema.colores.secundario
        Layout.fillWidth: true
    }
    Texto {
        text: raiz.estado.ahorro
        color: Tema.colores.azul
        font.pixelSize: Tema.letraGrande
        font.weight: Font.Bold
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: Tema.letraCifra
        Layout.fillWidth: true
    }
    Nota {
        text: "estimado; varía según lo seleccionado"
        wrapMode: Text.Wrap
        Layout.fillWidth: true
    }
    Row {
        spacing: Tema.espacio2
        Layout.topMargin: Tema.espacio2
        Insignia { texto: "Seguro"; tinta: Tema.colores.verde }
        Insignia { texto: "Revisar"; tinta: Tema.colores.naranja }
        Insignia { texto: "Manual"; tinta: Tema.colores.secundario }
    }
}
