"""The driver itself, on a small program whose behaviour is known."""

import os
import unittest

import esperar as modulo_esperar
from accesible import BOTON, CASILLA, TEXTO
from esperar import NoOcurrio
from pantalla import capturar, colores
from procesos import vivos_del_grupo
from programa import Programa
from prueba import PROGRAMAS, PruebaDeEscritorio

QML = os.path.join(os.path.dirname(os.path.abspath(__file__)), "muestra", "Muestra.qml")


class ElArnes(PruebaDeEscritorio):
    def iniciar_muestra(self):
        return self.iniciar("muestra_e2e", argumentos=[QML])

    def test_pulsa_botones_y_lee_textos(self):
        ventana = self.iniciar_muestra().ventana()
        boton = ventana.esperar("Contar", BOTON)
        boton.pulsar()
        boton.pulsar()
        ventana.esperar("Veces: 2", TEXTO)
        self.assertIn("Veces: 2", ventana.textos())

    def test_alterna_una_casilla_y_ve_que_cambio(self):
        casilla = self.iniciar_muestra().ventana().esperar("Opción", CASILLA)
        self.assertFalse(casilla.marcado)
        casilla.alternar()
        self.assertTrue(casilla.marcado)

    def test_lo_que_no_aparece_falla_con_lo_que_habia(self):
        ventana = self.iniciar_muestra().ventana()
        antes, modulo_esperar.LIMITE = modulo_esperar.LIMITE, 0.2
        self.addCleanup(setattr, modulo_esperar, "LIMITE", antes)
        with self.assertRaisesRegex(NoOcurrio, "Veces: 0"):
            ventana.esperar("Inexistente", BOTON)

    def test_lo_oculto_no_cuenta_como_visible(self):
        ventana = self.iniciar_muestra().ventana()
        ventana.esperar("Veces: 0", TEXTO)
        ventana.esperar("Vaciar", BOTON).pulsar()
        ventana.esperar_que_no_haya("Veces: 0", TEXTO)

    def test_una_captura_distingue_una_pantalla_vacia(self):
        lleno, vacio = self.casa.en("lleno.png"), self.casa.en("vacio.png")
        with Programa(self.escritorio, os.path.join(PROGRAMAS, "muestra_e2e"), self.casa.ruta, [QML]) as muestra:
            muestra.ventana().esperar("Veces: 0", TEXTO)
            capturar(self.escritorio, lleno)
        capturar(self.escritorio, vacio)
        self.assertGreater(colores(lleno), 16)
        self.assertEqual(colores(vacio), 1)

    def test_al_salir_del_contexto_no_queda_ningun_proceso(self):
        with Programa(self.escritorio, "/bin/sh", self.casa.ruta, ["-c", "sleep 60 & wait"]) as programa:
            self.assertTrue(vivos_del_grupo(programa.proceso.pid))
        self.assertEqual(vivos_del_grupo(programa.proceso.pid), [])

    def test_un_qml_roto_es_una_queja(self):
        roto = self.casa.escribir("Roto.qml", "import QtQuick\nWindow { x: inexistente }\n")
        programa = self.iniciar("muestra_e2e", argumentos=[roto])
        programa.raiz()
        self.assertTrue(any("inexistente" in queja for queja in programa.quejas()))


if __name__ == "__main__":
    unittest.main()
