"""The preferences: each is in effect at once, and again when the program comes back."""

import os
import unittest

from accesible import BOTON, CASILLA, FILA
from esperar import esperar
from gestor_ventanas import ConGestorDeVentanas
from instalacion import instalar
from prueba import PruebaDeEscritorio
from ventanas import pedir_cierre

DESLIZADOR = "slider"
CONTADOR = "spin button"
SELECTOR = "combo box"

# Name of the switch and its key.
INTERRUPTORES = {
    "Avisarme cuando quede poco espacio": "notificar",
    "Mostrar los GB libres junto al icono": "mostrarTextoEnBarra",
    "Procesador": "barraCPU",
    "Memoria": "barraRAM",
    "Red": "barraRed",
    "Mini gráfica del procesador": "barraGrafica",
    "Mostrar el icono en el Dock": "mostrarEnDock",
}
OMITIDA = "_NET_WM_STATE_SKIP_TASKBAR"


class ConAjustes(PruebaDeEscritorio):
    def abrir(self, **otros):
        programa = self.iniciar(**otros)
        ventana = programa.ventana()
        ventana.esperar("Ajustes", FILA).pulsar()
        ventana.esperar("Avisos de disco")
        return programa, ventana

    def control(self, ventana, nombre=None, papel=None, **criterios):
        """A control of the page, also one that would have to be scrolled to."""
        return ventana.esperar(nombre, papel, visible=False, **criterios)

    def guardados(self):
        """The lines of the preferences file, by key."""
        with open(self.casa.en(".config/Ovanta/ajustes.ini")) as archivo:
            return dict(linea.strip().split("=", 1) for linea in archivo if "=" in linea)


class CadaPreferencia(ConAjustes):
    def test_cada_una_se_guarda_y_sigue_en_vigor_al_volver(self):
        programa, ventana = self.abrir()
        antes = {nombre: self.control(ventana, nombre, CASILLA).marcado for nombre in INTERRUPTORES}
        for nombre in INTERRUPTORES:
            self.control(ventana, nombre, CASILLA).alternar()
        self.fijar(ventana, DESLIZADOR, "Aviso: ", 150)
        self.fijar(ventana, DESLIZADOR, "Crítico: ", 25)
        self.fijar(ventana, DESLIZADOR, "Ignorar archivos", 2.8)
        self.fijar(ventana, CONTADOR, "Descarga vieja", 30)
        self.control(ventana, "Avisar con batería baja", SELECTOR).hacer("Press")
        ventana.esperar("Al 30 %", FILA).pulsar()
        ventana.esperar_que_no_haya("Al 30 %", FILA)
        esperar(lambda: "CPU" in programa.icono().propiedades()["ToolTip"][2], "las cifras en el icono")
        self.salir_sin_quejas(programa)

        guardados = self.guardados()
        for nombre, clave in INTERRUPTORES.items():
            self.assertEqual(guardados[clave], "false" if antes[nombre] else "true", nombre)
        self.assertEqual(guardados["avisoBateria"], "30")

        programa, ventana = self.abrir()
        for nombre, marcado in antes.items():
            self.assertEqual(self.control(ventana, nombre, CASILLA).marcado, not marcado, nombre)
        self.control(ventana, "Aviso: 150 GB", DESLIZADOR)
        self.control(ventana, "Crítico: 25 GB", DESLIZADOR)
        self.control(ventana, "Ignorar archivos de menos de 3 MB", DESLIZADOR)
        self.control(ventana, "«Descarga vieja» a partir de 30 días", CONTADOR)
        self.assertEqual(self.control(ventana, "Avisar con batería baja", SELECTOR).descripcion, "Al 30 %")
        ayuda = esperar(lambda: programa.icono().propiedades()["ToolTip"][2], "la ayuda del icono")
        for cifra in ("CPU", "RAM", "NET"):
            self.assertIn(cifra, ayuda)
        self.assertNotIn("GB", ayuda)
        self.salir_sin_quejas(programa)

    def fijar(self, ventana, papel, contiene, valor):
        control = self.control(ventana, papel=papel, contiene=contiene)
        control.fijar_valor(valor)
        esperar(lambda: abs((control.valor or 0) - valor) < 1e-6, f"que {contiene} valga {valor}")

    def test_un_archivo_de_basura_deja_una_pantalla_que_funciona(self):
        self.casa.escribir(".config/Ovanta/ajustes.ini",
                           b"[General]\numbralAviso=rnan\numbralCritico=basura\nminimoMB=r-4\ndiasDescargas=0\n"
                           b"avisoBateria=999999999999\nnotificar=7\n\x00\xff[[[\n")
        programa, ventana = self.abrir()
        self.control(ventana, "Aviso: 100 GB", DESLIZADOR)
        self.control(ventana, "Ignorar archivos de menos de 1 MB", DESLIZADOR)
        self.control(ventana, "«Descarga vieja» a partir de 90 días", CONTADOR)
        self.salir_sin_quejas(programa)


class LosAvisos(ConAjustes):
    def setUp(self):
        super().setUp()
        # Far below whatever is free here, so that nothing is told before it is asked for.
        self.casa.escribir(".config/Ovanta/ajustes.ini", "[General]\numbralAviso=r0\numbralCritico=r0\n")
        self.avisos = self.escritorio.notificaciones.enviadas
        self.avisos.clear()

    def titulos(self):
        return [aviso["titulo"] for aviso in self.avisos]

    def test_un_umbral_por_encima_de_lo_libre_trae_un_solo_aviso(self):
        libres = os.statvfs(self.casa.ruta)
        gigas = libres.f_bavail * libres.f_frsize / 2**30
        if gigas > 370:
            self.skipTest("aquí hay más espacio libre del que alcanza el umbral")
        programa, ventana = self.abrir()
        ventana.esperar("concedido")
        umbral = self.control(ventana, papel=DESLIZADOR, contiene="Aviso: ")
        umbral.fijar_valor(390)
        esperar(lambda: self.titulos() == ["Queda poco espacio"], "el aviso")
        umbral.fijar_valor(400)
        self.control(ventana, "Aviso: 400 GB", DESLIZADOR)
        self.salir_sin_quejas(programa)
        self.assertEqual(self.titulos(), ["Queda poco espacio"])

    def test_el_aviso_de_prueba_llega(self):
        programa, ventana = self.abrir()
        ventana.esperar("concedido")
        ventana.esperar("Enviar un aviso de prueba", BOTON).pulsar()
        esperar(lambda: self.titulos() == ["Queda poco espacio"], "el aviso de prueba")
        self.salir_sin_quejas(programa)


class ElInicioDeSesion(ConAjustes):
    def setUp(self):
        super().setUp()
        self.entrada = self.casa.en(".config/autostart/com.belmora.Ovanta.desktop")

    def interruptor(self, ventana):
        return self.control(ventana, "Abrir al iniciar sesión", CASILLA)

    def test_la_entrada_aparece_y_desaparece_y_nombra_el_programa(self):
        binario = instalar(self.casa.en("mi programa"), [])
        programa, ventana = self.abrir(programa=binario)
        self.assertFalse(self.interruptor(ventana).marcado)
        self.interruptor(ventana).alternar()
        esperar(lambda: os.path.exists(self.entrada), "la entrada de inicio")
        with open(self.entrada) as archivo:
            self.assertIn(f'Exec="{binario}"\n', archivo.read())
        self.salir_sin_quejas(programa)

        programa, ventana = self.abrir(programa=binario)
        esperar(lambda: self.interruptor(ventana).marcado, "que el interruptor diga lo que hay")
        self.interruptor(ventana).alternar()
        esperar(lambda: not os.path.exists(self.entrada), "que se vaya la entrada")
        self.salir_sin_quejas(programa)

    def test_lo_que_no_se_puede_escribir_se_dice_y_el_interruptor_vuelve(self):
        # Not even root can make a folder where a file is.
        self.casa.escribir(".config/autostart", "")
        programa, ventana = self.abrir()
        self.interruptor(ventana).hacer("Toggle", "Press")
        ventana.esperar(contiene="No se pudo cambiar «", visible=False)
        self.assertFalse(self.interruptor(ventana).marcado)
        self.salir_sin_quejas(programa)


class LaBarraDeTareas(ConGestorDeVentanas, ConAjustes):
    """With a window manager of its own: only such a one changes the state of an open window."""

    def omitida(self):
        """Whether the task bar leaves the program's window out; None while there is none."""
        numero = self.numero()
        return numero and OMITIDA in self.xprop("-id", numero, "_NET_WM_STATE")

    def test_la_ventana_abierta_deja_la_barra_y_sigue_abierta_y_vuelve(self):
        programa, ventana = self.abrir()
        esperar(lambda: self.omitida() is False, "la ventana en la barra de tareas")
        self.control(ventana, "Mostrar el icono en el Dock", CASILLA).alternar()
        esperar(self.omitida, "que deje la barra")
        self.assertTrue(ventana.esperar("Avisos de disco").visible)
        self.control(ventana, "Mostrar el icono en el Dock", CASILLA).alternar()
        esperar(lambda: self.omitida() is False, "que vuelva a la barra")
        self.salir_sin_quejas(programa)

    def test_apagado_lo_esta_tambien_al_volver_y_sin_ventana_el_programa_sigue(self):
        self.casa.escribir(".config/Ovanta/ajustes.ini", "[General]\nmostrarEnDock=false\n")
        programa, ventana = self.abrir()
        esperar(self.omitida, "la ventana fuera de la barra desde el principio")
        self.assertFalse(self.control(ventana, "Mostrar el icono en el Dock", CASILLA).marcado)
        pedir_cierre(self.escritorio, int(self.numero(), 16))
        esperar(lambda: self.omitida() is None, "que se cierre la ventana")
        self.assertIsNone(programa.proceso.poll(), "sin ventana ni Dock el programa sigue")
        programa.icono().pulsar_con_el_medio()
        esperar(self.omitida, "la ventana nueva fuera de la barra")
        self.salir_sin_quejas(programa)


if __name__ == "__main__":
    unittest.main()
