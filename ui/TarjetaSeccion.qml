import QtQuick
import QtQuick.Layouts
import Ovanta

/// A card of the summary, which leads to its section.
AparicionEscalonada {
    id: raiz
    required property int index
    required property string seccion
    required property string titulo
    required property string simbolo
    required property int tinte
    required property string cifra
    required property string detalle
    required property string insignia
    required property int tinteInsignia
    signal elegida(string seccion)

    indice: index
    height: 140
    EstiloTarjeta {
        anchors.fill: parent
        text: raiz.titulo
        tinta: Tema.colores.tinta(raiz.tinte)
        Accessible.description: raiz.cifra + ". " + raiz.detalle + ". " + raiz.insignia
        onClicked: raiz.elegida(raiz.seccion)
        contentItem: ColumnLayout {
            spacing: Tema.espacio1
            RowLayout {
                spacing: Tema.espacio2
                Symbol {
                    nombre: raiz.simbolo
                    tamano: 20
                    color: Tema.colores.tinta(raiz.tinte)
                }
                Texto {
                    text: raiz.titulo
                    font.pixelSize: Tema.letraCuerpo - 1
                    font.weight: Font.DemiBold
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: Tema.letraNota - 1
                    Layout.fillWidth: true
                }
            }
            Item { Layout.fillHeight: true }
            RowLayout {
                spacing: Tema.espacio2
                Texto {
                    text: raiz.cifra
                    font.pixelSize: Tema.letraCifra + 2
                    font.weight: Font.Bold
                    color: Tema.colores.tinta(raiz.tinte)
                    Layout.fillWidth: true
                }
                Insignia {
                    texto: raiz.insignia
                    tinta: Tema.colores.tinta(raiz.tinteInsignia)
                }
            }
            Nota {
                text: raiz.detalle
                wrapMode: Text.Wrap
                maximumLineCount: 2
                Layout.fillWidth: true
                Layout.preferredHeight: 32
            }
        }
    }
}
