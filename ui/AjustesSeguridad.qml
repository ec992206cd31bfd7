pragma ComponentBehavior: Bound
import QtQuick
import Ovanta

GrupoAjustes {
    id: raiz
    required property PrefsViewEstado estado

    simbolo: "checkmark.shield"
    titulo: "Seguridad"
    Repeater {
        model: [
            "Nada se elimina: todo se mueve a la Papelera.",
            "Solo se opera dentro de tu carpeta de inicio.",
            "Documentos, Escritorio, Llaveros, .ssh y .git nunca se tocan."
        ]
        FilaAjuste {
            id: fila
            required property string modelData
            required property int index
            linea: index > 0
            texto: modelData
            leido: true
            Symbol {
                nombre: "checkmark.circle.fill"
                tamano: 20
                color: Tema.colores.verde
            }
        }
    }
    FilaAjuste {
        Boton {
            simbolo: "trash"
            text: "Abrir la Papelera"
            onClicked: raiz.estado.abrirPapelera()
        }
    }
}
