import QtQuick
import Ovanta

GrupoAjustes {
    id: raiz
    required property PrefsViewEstado estado

    simbolo: "magnifyingglass"
    titulo: "Análisis"
    FilaAjuste {
        linea: false
        texto: raiz.estado.textoMinimo
        nota: "Subir el mínimo acelera mucho el análisis: la mayoría de archivos de un Mac son diminutos y nunca compensan."
        Deslizador {
            nombre: raiz.estado.textoMinimo
            rango: raiz.estado.rangoMinimo
            valor: raiz.estado.minimoMB
            onMovido: valor => raiz.estado.minimoMB = valor
        }
    }
    FilaAjuste {
        texto: raiz.estado.textoDias
        Contador {
            nombre: raiz.estado.textoDias
            rango: raiz.estado.rangoDias
            valor: raiz.estado.diasDescargas
            onMovido: valor => raiz.estado.diasDescargas = valor
        }
    }
}
