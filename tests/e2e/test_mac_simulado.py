"""The program over the simulated Mac: every screen, every look, and a clean-up of its own."""

import os
import unittest

from accesible import FILA
from caches import PantallaCaches
from capturas import SECCIONES
from pantalla import capturar_quieta
from prueba import PruebaDeEscritorio


class ElMacSimulado(PruebaDeEscritorio):
    def setUp(self):
        super().setUp()
        self.temporal = self.casa.en("tmp")
        os.mkdir(self.temporal)

    def iniciar_mac(self, *argumentos):
        return self.iniciar("OvantaSimulada", argumentos=argumentos, TMPDIR=self.temporal)

    def hogar_del_mac(self):
        (maquina,) = os.listdir(self.temporal)
        return os.path.join(self.temporal, maquina, "Users/ana")

    def test_recorre_todas_las_secciones_y_no_deja_nada(self):
        programa = self.iniciar_mac()
        ventana = programa.ventana()
        for titulo in SECCIONES.values():
            with self.subTest(titulo):
                ventana.esperar(titulo, FILA).pulsar()
                capturar_quieta(self.escritorio, self.casa.en("pantalla.png"))
        self.assertTrue(os.path.isdir(self.hogar_del_mac()))
        self.salir_sin_quejas(programa)
        self.assertEqual(os.listdir(self.temporal), [])

    def test_limpia_en_su_propia_papelera(self):
        programa = self.iniciar_mac()
        pantalla = PantallaCaches(programa.ventana())
        pantalla.esperar_medida()
        derivados = os.path.join(self.hogar_del_mac(), "Library/Developer/Xcode/DerivedData")
        llevados = set(os.listdir(derivados))
        self.assertTrue(llevados)
        programa.ventana().esperar("Compilaciones de Xcode", "check box").alternar()
        programa.ventana().esperar(contiene="1 seleccionado ")
        mensaje = pantalla.mover(1)
        self.assertTrue(mensaje.startswith(f"Movidos {len(llevados)} elementos"), mensaje)
        self.assertEqual(os.listdir(derivados), [])
        self.assertEqual(set(os.listdir(os.path.join(self.hogar_del_mac(), ".Trash"))), llevados)
        self.salir_sin_quejas(programa)


if __name__ == "__main__":
    unittest.main()
