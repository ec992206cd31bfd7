import QtQuick
import QtQuick.Layouts
import Ovanta

/// The live figures.
BloqueMenu {
    id: raiz
    required property MenuViewEstado estado

    simbolo: "waveform.path.ecg"
    titulo: "En vivo"
    FilaViva {
        simbolo: "cpu"
        nombre: "Procesador"
        valor: raiz.estado.cpu
        tintaValor: Tema.colores.tinta(raiz.estado.tinteCPU)
        historial: raiz.estado.historialCPU
        maximo: 1
        tintaCurva: Tema.colores.tinta(raiz.estado.tinteCPU)
    }
    FilaViva {
        simbolo: "memorychip"
        nombre: "Memoria"
        valor: raiz.estado.ram
        detalle: raiz.estado.memoria
        tintaDetalle: Tema.colores.tinta(raiz.estado.tinteMemoria)
        historial: raiz.estado.historialRAM
        maximo: 1
        tintaCurva: Tema.colores.tinta(raiz.estado.tinteCurvaMemoria)
    }
    FilaViva {
        simbolo: "arrow.up.arrow.down"
        nombre: "Red"
        valor: raiz.estado.bajada
        segundoValor: raiz.estado.subida
        historial: raiz.estado.historialRed
        tintaCurva: Tema.colores.tinta(Paleta.Turquesa)
    }
    Rectangle {
        implicitHeight: 1
        color: Tema.colores.borde
        Layout.fillWidth: true
    }
    Rotulo {
        simbolo: "thermometer.medium"
        texto: raiz.estado.termico
        letra: Tema.letraCuerpo - 1
        Layout.fillWidth: true
    }
    Rotulo {
        visible: raiz.estado.bateria !== ""
        simbolo: raiz.estado.simboloBateria
        texto: raiz.estado.bateria
        color: Tema.colores.tinta(raiz.estado.tinteBateria)
        letra: Tema.letraCuerpo - 1
        Layout.fillWidth: true
    }
    Nota {
        visible: raiz.estado.salud !== ""
        text: raiz.estado.salud
        color: Tema.colores.tinta(raiz.estado.tinteSalud)
        wrapMode: Text.Wrap
        Layout.fillWidth: true
        Layout.leftMargin: Tema.letraCuerpo + 3 + Tema.espacio2 - 2
    }
}
