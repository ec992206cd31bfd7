import QtQuick
import QtQuick.Layouts
import Ovanta

GrupoAjustes {
    id: raiz
    required property PrefsViewEstado estado

    simbolo: "menubar.rectangle"
    titulo: "Barra de menú"
    FilaAjuste {
        linea: false
        texto: "Mostrar los GB libres junto al icono"
        Interruptor {
            nombre: "Mostrar los GB libres junto al icono"
            checked: raiz.estado.textoEnBarra
            onToggled: raiz.estado.textoEnBarra = checked
        }
    }
    FilaAjuste {
        texto: "Monitor en la barra"
        leido: true
        Casilla {
            text: "Procesador"
            checked: raiz.estado.barraCPU
            onToggled: raiz.estado.barraCPU = checked
        }
        Casilla {
            text: "Memoria"
            checked: raiz.estado.barraRAM
            onToggled: raiz.estado.barraRAM = checked
        }
        Casilla {
            text: "Red"
            checked: raiz.estado.barraRed
            onToggled: raiz.estado.barraRed = checked
        }
    }
    FilaAjuste {
        texto: "Mini gráfica del procesador"
        Interruptor {
            nombre: "Mini gráfica del procesador"
            checked: raiz.estado.barraGrafica
            onToggled: raiz.estado.barraGrafica = checked
        }
    }
    FilaAjuste {
        texto: "Avisar con batería baja"
        Selector {
            nombre: "Avisar con batería baja"
            model: raiz.estado.opcionesBateria
            indice: raiz.estado.opcionBateria
            mostrado: raiz.estado.textoBateria
            onElegido: indice => raiz.estado.opcionBateria = indice
        }
    }
    NotaGrupo { text: "Se actualiza cada 2 segundos leyendo directamente del sistema; no consume batería de forma apreciable." }
    FilaAjuste {
        texto: "Mostrar el icono en el Dock"
        nota: "Sin icono en el Dock la app sigue viva en la barra de menú."
        Interruptor {
            nombre: "Mostrar el icono en el Dock"
            checked: raiz.estado.enDock
            onToggled: raiz.estado.enDock = checked
        }
    }
    FilaAjuste {
        texto: "Abrir al iniciar sesión"
        Interruptor {
            nombre: "Abrir al iniciar sesión"
            checked: raiz.estado.alInicio
            onToggled: raiz.estado.alInicio = checked
        }
        debajo: [
            Rotulo {
                visible: raiz.estado.errorInicio !== ""
                simbolo: "exclamationmark.triangle"
                texto: raiz.estado.errorInicio
                color: Tema.colores.rojo
                grosor: Font.Medium
                Layout.fillWidth: true
            }
        ]
    }
}
