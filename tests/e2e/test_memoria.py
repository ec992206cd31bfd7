"""The memory screen on programs that run for real: closing, refusing, forcing, and asking for a restart."""

import os
import signal
import unittest

from accesible import BOTON, FILA
from app_prueba import POR_SU_VENTANA, AppDePrueba
from esperar import esperar
from gestor_ventanas import ConGestorDeVentanas
from memoria import CERRAR, FORZAR, REINICIAR, PantallaMemoria
from procesos import hay_espacios_de_montaje
from prueba import PROGRAMAS, PruebaDeEscritorio
from servicios import GestorSesion
from ventanas import abiertas, esperar_abierta, esperar_ninguna, pedir_cierre

MENSAJE_CERRAR = ("macOS enviará la orden normal de cierre. Cada app puede pedirte guardar cambios antes de "
                  "salir.")
MENSAJE_FORZAR = ("Es lo mismo que «Forzar salida» de macOS (⌥⌘⎋): la app se cierra aunque no quiera y pierde "
                  "lo que no hayas guardado.")
MENSAJE_REINICIAR = ("Es la única forma de vaciar el swap. macOS te pedirá confirmar y cada app podrá guardar "
                     "sus cambios.")
SIGUE = (". Puede que estén esperando a que guardes algo, o que se hayan escondido en la barra de menú en vez "
         "de salir.")
# Longer than a button is wide.
INSEGURA = "Prueba insegura con un nombre que nadie acabaría de leer"
GIB = 2**20  # in the unit of /proc/meminfo

# A machine of 16 GB with 3 GB of old swap, where nothing happens now.
PROC = {
    "meminfo": f"MemTotal: {16 * GIB} kB\nMemFree: {4 * GIB} kB\nMemAvailable: {8 * GIB} kB\nBuffers: 0 kB\n"
               f"Cached: {5 * GIB} kB\nShmem: {GIB} kB\nAnonPages: {5 * GIB} kB\nSUnreclaim: {GIB} kB\n"
               f"SwapTotal: {8 * GIB} kB\nSwapFree: {5 * GIB} kB\n",
    "swaps": "Filename\tType\tSize\tUsed\tPriority\n",
    "vmstat": "pswpin 0\npswpout 0\n",
    "pressure/memory": "some avg10=0.00 avg60=0.00 avg300=0.00 total=0\n"
                       "full avg10=0.00 avg60=0.00 avg300=0.00 total=0\n",
}


def disponible():
    """Bytes of memory that can still be had."""
    with open("/proc/meminfo") as archivo:
        return next(int(linea.split()[1]) * 1024 for linea in archivo if linea.startswith("MemAvailable"))


class CerrarAplicaciones(ConGestorDeVentanas, PruebaDeEscritorio):
    def abrir(self, modo, nombre, **otros):
        app = self.enterContext(AppDePrueba(self.escritorio, self.casa, modo, nombre, **otros))
        # One without a window would be ended by a signal.
        esperar(lambda: self.numero(app.titulo), f"la ventana de {nombre}")
        return app

    def mirar(self):
        """The program, on its memory screen."""
        programa = self.iniciar()
        return programa, PantallaMemoria(programa.ventana())

    def esperar_respuesta(self, pantalla, texto):
        pantalla.esperar_texto(texto)
        pantalla.ventana.esperar_que_no_haya("Esperando a que las apps se cierren…")

    def test_la_que_quiere_se_cierra_por_su_ventana(self):
        app = self.abrir("cierra", "Prueba dispuesta")
        programa, pantalla = self.mirar()
        pantalla.marcar(app.nombre)
        pregunta = pantalla.pedir_cierre(1)
        self.assertEqual(pregunta.textos(), [CERRAR, CERRAR, MENSAJE_CERRAR, "Cancelar", "Cerrar apps normalmente"])
        pantalla.responder(CERRAR, "Cerrar apps normalmente")
        self.esperar_respuesta(pantalla, "Cerradas: Prueba dispuesta.")
        self.assertEqual(app.codigo_de_salida(), POR_SU_VENTANA)
        self.assertEqual(pantalla.ventana.buscar(contiene="Forzar salida"), [])
        self.assertEqual(pantalla.ventana.buscar(contiene="Cerrar ", papel=BOTON), [])
        self.salir_sin_quejas(programa)

    def test_la_que_pregunta_sigue_abierta_y_solo_ella_se_puede_forzar(self):
        cierra = self.abrir("cierra", "Prueba dispuesta")
        pregunta = self.abrir("pregunta", INSEGURA)
        programa, pantalla = self.mirar()
        pantalla.cerrar(cierra.nombre, pregunta.nombre)
        pantalla.esperar_texto("Esperando a que las apps se cierren…")
        self.esperar_respuesta(pantalla, f"Cerradas: Prueba dispuesta. Siguen abiertas: {INSEGURA}{SIGUE}")
        self.assertEqual(cierra.codigo_de_salida(), POR_SU_VENTANA)
        self.assertTrue(pregunta.vive)

        pantalla.ventana.esperar(f"Forzar salida de {INSEGURA}", BOTON).pulsar()
        self.assertEqual(pantalla.pregunta(FORZAR).textos(),
                         [FORZAR, FORZAR, MENSAJE_FORZAR, "Cancelar", "Forzar salida"])
        pantalla.responder(FORZAR, "Cancelar")
        self.assertTrue(pregunta.vive)
        pantalla.ventana.esperar(f"Forzar salida de {INSEGURA}", BOTON).pulsar()
        pantalla.responder(FORZAR, "Forzar salida")
        self.esperar_respuesta(pantalla, f"Forzada la salida de {INSEGURA}.")
        self.assertEqual(pregunta.codigo_de_salida(), -signal.SIGKILL)
        self.assertEqual(pantalla.ventana.buscar(contiene="Forzar salida de "), [])
        self.salir_sin_quejas(programa)

    def test_cancelar_no_cierra_ni_desmarca_nada(self):
        app = self.abrir("pregunta", INSEGURA)
        programa, pantalla = self.mirar()
        pantalla.marcar(app.nombre)
        pantalla.pedir_cierre(1)
        pantalla.responder(CERRAR, "Cancelar")
        self.assertTrue(pantalla.marcada(app.nombre))
        self.assertEqual(app.veces("preguntado"), 0)

        pantalla.pedir_cierre(1)
        pantalla.responder(CERRAR, "Cerrar apps normalmente")
        self.esperar_respuesta(pantalla, f"Siguen abiertas: {INSEGURA}{SIGUE}")
        self.assertEqual(app.veces("preguntado"), 1, "solo la segunda vez se le pidió")
        self.assertFalse(pantalla.marcada(app.nombre))
        self.salir_sin_quejas(programa)

    def test_la_que_ya_se_habia_ido_no_se_cuenta(self):
        app = self.abrir("cierra", "Prueba fugaz")
        programa, pantalla = self.mirar()
        pantalla.marcar(app.nombre)
        app.matar()
        pantalla.actualizar_hasta_que_falte(app.nombre)
        pantalla.pedir_cierre(1)
        pantalla.responder(CERRAR, "Cerrar apps normalmente")
        self.esperar_respuesta(pantalla, "Las apps seleccionadas ya no estaban abiertas.")
        self.assertEqual(pantalla.ventana.buscar(contiene="Forzar salida"), [])
        self.salir_sin_quejas(programa)

    def test_ni_este_programa_ni_su_sesion_se_pueden_marcar(self):
        self.casa.escribir(".local/share/applications/com.belmora.Ovanta.desktop",
                           "[Desktop Entry]\nType=Application\nName=Ovanta\n"
                           f"Exec={os.path.join(PROGRAMAS, 'OvantaBar')}\n")
        fondo = self.abrir("fondo", "Prueba fondo")
        app = self.abrir("cierra", "Prueba dispuesta")
        programa, pantalla = self.mirar()
        pantalla.casilla(fondo.titulo)
        intocables = [casilla for nombre in (fondo.titulo, "Ovanta", "OvantaBar", "openbox", "Xvfb", "dbus-daemon")
                      for casilla in pantalla.casillas(nombre)]
        for casilla in intocables:
            casilla.hacer("Toggle", "Press")
        # What is done to this one comes after all of that.
        pantalla.marcar(app.nombre)
        pantalla.ventana.esperar("Cerrar 1", BOTON)
        self.assertEqual([casilla for casilla in intocables if casilla.marcado], [])
        self.salir_sin_quejas(programa)
        self.assertTrue(fondo.vive)

    @unittest.skipUnless(disponible() > 4 * 2**30, "aquí no sobra la memoria que ocupa la app")
    def test_la_recomendacion_cierra_su_app(self):
        app = self.abrir("cierra", "Ollama de prueba", mib=1100)
        programa, pantalla = self.mirar()
        boton = esperar(lambda: [b for b in pantalla.ventana.buscar("Cerrar app", BOTON, visible=False)
                                 if app.nombre in b.descripcion], "su recomendación")[0]
        boton.pulsar()
        pantalla.responder(CERRAR, "Cerrar apps normalmente")
        self.esperar_respuesta(pantalla, "Cerradas: Ollama de prueba.")
        self.assertEqual(app.codigo_de_salida(), POR_SU_VENTANA)
        self.salir_sin_quejas(programa)


@unittest.skipUnless(hay_espacios_de_montaje(), "aquí no se puede dar al programa otra memoria que la de verdad")
class Reiniciar(PruebaDeEscritorio):
    def setUp(self):
        super().setUp()
        self.sesion = GestorSesion(self.escritorio.hilo)
        self.sesion.aparecer()
        self.addCleanup(self.sesion.desaparecer)

    def sin_movimiento(self):
        """Sheets come and go at once, in the middle of what opens and closes them."""
        self.escritorio.portal.animaciones(False)
        self.addCleanup(self.escritorio.portal.animaciones, True)

    def con_swap_viejo(self):
        """The program, where the kernel tells of another machine's memory. The real system is out of reach."""
        for nombre, texto in PROC.items():
            self.casa.escribir("proc/" + nombre, texto)
        montajes = [f'mount --bind "{self.casa.en("proc")}/{nombre}" /proc/{nombre}'
                    for nombre in PROC if os.path.exists("/proc/" + nombre)]
        binario = os.path.join(PROGRAMAS, "OvantaBar")
        orden = " && ".join([*montajes, f'exec "{binario}"'])
        return self.iniciar("/usr/bin/unshare", argumentos=["--mount", "sh", "-c", orden],
                            DBUS_SYSTEM_BUS_ADDRESS="disabled:")

    def test_cancelar_no_pide_nada_y_confirmar_lo_pide_una_vez(self):
        self.sin_movimiento()
        programa = self.con_swap_viejo()
        pantalla = PantallaMemoria(programa.ventana())
        pantalla.esperar_texto("3 GB usados de 8 GB")
        pantalla.esperar_texto("Ahora hay RAM de sobra. El swap que ves es de un pico anterior.")
        reiniciar = pantalla.ventana.esperar("Reiniciar…", BOTON, visible=False)
        self.assertIn("Hay 3 GB de swap de un pico anterior ocupando el SSD. Ahora no se usa, pero solo se libera "
                      "al reiniciar", reiniciar.descripcion)
        reiniciar.pulsar()
        self.assertEqual(pantalla.pregunta(REINICIAR).textos(),
                         [REINICIAR, REINICIAR, MENSAJE_REINICIAR, "Cancelar", "Reiniciar…"])
        pantalla.responder(REINICIAR, "Cancelar")
        self.assertEqual(self.sesion.pedidos, [])

        reiniciar.pulsar()
        pantalla.responder(REINICIAR, "Reiniciar…")
        esperar(lambda: self.sesion.pedidos, "que se pida el reinicio")
        self.salir_sin_quejas(programa)
        self.assertEqual(self.sesion.pedidos, ["Reboot"])


class ElPanel(PruebaDeEscritorio):
    def test_dice_la_memoria_y_con_la_ventana_cerrada_lleva_a_los_simuladores(self):
        programa = self.iniciar()
        icono = programa.icono()
        pedir_cierre(self.escritorio, esperar_abierta(self.escritorio))
        esperar_ninguna(self.escritorio)
        icono.pulsar()
        panel = programa.panel()
        esperar(lambda: self.fila_de_memoria(panel), "la cifra de la memoria")
        panel.esperar("Revisar y borrar simuladores…", BOTON).pulsar()
        ventana = programa.ventana()
        esperar(lambda: ventana.esperar("Simuladores", FILA).seleccionado, "la sección de los simuladores")
        esperar(lambda: not abiertas(self.escritorio, "Panel de Ovanta"), "que se cierre el panel")
        self.salir_sin_quejas(programa)

    def fila_de_memoria(self, panel):
        """What stands between the name of the memory and that of the network."""
        textos = panel.textos()
        fila = textos[textos.index("Memoria"):textos.index("Red")]
        return [texto for texto in fila if texto.endswith(" %")]


if __name__ == "__main__":
    unittest.main()
