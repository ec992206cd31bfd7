import QtQuick
import QtQuick.Layouts
import Ovanta

/// An application with all its processes. Space ticks it.
Item {
    id: raiz
    required property MemoryViewEstado estado
    required property int pid
    required property string icono
    required property string nombre
    required property string cuantos
    required property string cpu
    required property int tinteCpu
    required property string memoria
    required property double fraccion
    required property int tinteMemoria
    required property string resumen
    required property bool seleccionable
    required property bool seleccionada

    height: 46
    Accessible.role: Accessible.ListItem
    Accessible.name: nombre
    Accessible.description: resumen
    Keys.onSpacePressed: raiz.estado.marcar(raiz.pid, !raiz.seleccionada)

    Rectangle {
        anchors { fill: parent; leftMargin: Tema.espacio2; rightMargin: Tema.espacio2; topMargin: 1; bottomMargin: 1 }
        radius: Tema.radioControl
        color: raiz.seleccionada ? Tema.colores.conOpacidad(Tema.colores.azul, 0.1) : "transparent"
        AnilloFoco {
            mostrado: raiz.activeFocus
            anchors.margins: 0
        }
    }
    RowLayout {
        anchors { fill: parent; leftMargin: Tema.espacio4; rightMargin: Tema.espacio4 }
        spacing: Tema.espacio3
        Casilla {
            nombre: raiz.nombre
            enabled: raiz.seleccionable
            checked: raiz.seleccionada
            onToggled: raiz.estado.marcar(raiz.pid, checked)
        }
        Item {
            implicitWidth: 26
            implicitHeight: 26
            IconoAplicacion {
                id: imagen
                anchors.fill: parent
                icono: raiz.icono
            }
            Symbol {
                anchors.centerIn: parent
                visible: !imagen.hay
                nombre: "gearshape"
                tamano: 20
                color: Tema.colores.secundario
            }
        }
        Texto {
            text: raiz.nombre
            font.weight: Font.Medium
            Layout.maximumWidth: Math.ceil(implicitWidth) + 1
            Layout.fillWidth: true
        }
        Nota {
            text: raiz.cuantos
            visible: text !== ""
        }
        Item { Layout.fillWidth: true }
        Texto {
            text: raiz.cpu
            color: Tema.colores.tinta(raiz.tinteCpu)
            font.pixelSize: Tema.letraCuerpo - 1
            horizontalAlignment: Text.AlignRight
            verticalAlignment: Text.AlignVCenter
            Layout.preferredWidth: 78
            Layout.fillHeight: true
            Accessible.description: ayudaCpu.texto
            Ayuda {
                id: ayudaCpu
                texto: "Parte de toda la potencia del procesador que usa esta app ahora mismo, sumando todos sus procesos. 100 % sería el Mac entero dedicado a ella."
            }
        }
        Item {
            Layout.preferredWidth: 172
            Layout.fillHeight: true
            RowLayout {
                anchors.fill: parent
                spacing: Tema.espacio3
                BarraProgreso {
                    valor: raiz.fraccion
                    tinta: Tema.colores.forma(raiz.tinteMemoria)
                    Layout.fillWidth: true
                }
                Texto {
                    text: raiz.memoria
                    font.weight: Font.DemiBold
                    horizontalAlignment: Text.AlignRight
                    Layout.preferredWidth: 82
                    Accessible.description: ayudaMemoria.texto
                }
            }
            Ayuda {
                id: ayudaMemoria
                texto: raiz.estado.ayudaMemoria
            }
        }
    }
}
