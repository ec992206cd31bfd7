import QtQuick
import QtQuick.Layouts
import Ovanta

GrupoAjustes {
    id: raiz
    required property PrefsViewEstado estado

    simbolo: "internaldrive"
    titulo: "Avisos de disco"
    FilaAjuste {
        linea: false
        texto: "Avisarme cuando quede poco espacio"
        Interruptor {
            nombre: "Avisarme cuando quede poco espacio"
            checked: raiz.estado.notificar
            onToggled: raiz.estado.notificar = checked
        }
    }
    FilaAjuste {
        texto: raiz.estado.textoAviso
        Deslizador {
            nombre: raiz.estado.textoAviso
            rango: raiz.estado.rangoAviso
            valor: raiz.estado.umbralAviso
            onMovido: valor => raiz.estado.umbralAviso = valor
        }
    }
    FilaAjuste {
        texto: raiz.estado.textoCritico
        Deslizador {
            nombre: raiz.estado.textoCritico
            rango: raiz.estado.rangoCritico
            valor: raiz.estado.umbralCritico
            onMovido: valor => raiz.estado.umbralCritico = valor
        }
        debajo: [
            Rotulo {
                visible: raiz.estado.umbralesCruzados
                simbolo: "exclamationmark.triangle"
                texto: "El umbral crítico debería ser menor que el de aviso."
                color: Tema.colores.naranja
                grosor: Font.Medium
                Layout.fillWidth: true
            }
        ]
    }
    FilaAjuste {
        texto: "Permiso de notificaciones"
        leido: true
        Rotulo {
            simbolo: raiz.estado.simboloPermiso
            texto: raiz.estado.permiso
            color: Tema.colores.tinta(raiz.estado.tintePermiso)
            letra: Tema.letraCuerpo - 1
            Layout.maximumWidth: 300
        }
    }
    FilaAjuste {
        linea: false
        Boton {
            text: "Enviar un aviso de prueba"
            onClicked: raiz.estado.probarAviso()
        }
    }
    NotaGrupo { text: "No se repite el mismo aviso antes de 6 horas. Al subir por encima del umbral se rearma." }
}
