pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Ovanta

/// The applications that take the most memory, each with a tick where it may be closed.
ColumnLayout {
    id: raiz
    required property MemoryViewEstado estado

    spacing: Tema.espacio2
    Texto {
        text: "Lo que más memoria consume"
        font.pixelSize: Tema.letraCabecera
        font.weight: Font.DemiBold
        Layout.fillWidth: true
        Layout.topMargin: Tema.espacio2
        Accessible.role: Accessible.Heading
    }
    Nota {
        text: "Cada app incluye todos sus procesos auxiliares. Selecciona las que no uses: se cerrarán normalmente y podrán pedir guardar cambios."
        wrapMode: Text.Wrap
        Layout.fillWidth: true
    }
    Superficie {
        implicitHeight: columna.implicitHeight + Tema.espacio2
        Layout.fillWidth: true
        Layout.topMargin: Tema.espacio1
        ColumnLayout {
            id: columna
            width: parent.width
            spacing: 0
            CabeceraTablaMemoria {
                visible: !raiz.estado.vacio
                Layout.fillWidth: true
            }
            ListaVirtual {
                visible: !raiz.estado.vacio
                interactive: false
                reuseItems: false
                model: raiz.estado.filas
                implicitHeight: contentHeight
                Accessible.name: "Lo que más memoria consume"
                Layout.fillWidth: true
                delegate: FilaProceso {
                    estado: raiz.estado
                    width: ListView.view.width
                }
            }
            Item {
                visible: raiz.estado.vacio
                implicitHeight: nada.implicitHeight + 2 * Tema.espacio6
                Layout.fillWidth: true
                EstadoVacio {
                    id: nada
                    anchors.centerIn: parent
                    width: parent.width - 2 * Tema.margen
                    simbolo: "memorychip"
                    titulo: "Sin procesos medidos"
                    mensaje: "Pulsa Actualizar para volver a leerlos."
                }
            }
        }
    }
    NotaTablaMemoria {
        estado: raiz.estado
        Layout.fillWidth: true
    }
}
