"""What the program refuses, told in words, while the rest goes on."""

import os
import unittest

from accesible import FILA
from arbol import inventario
from caches import PantallaCaches
from instalacion import instalar, regla
from papelera import listar
from prueba import PruebaDeEscritorio
from programa import Casa


class LoQueSeRechaza(PruebaDeEscritorio):
    def setUp(self):
        super().setUp()
        self.prefijo = self.enterContext(Casa())
        self.ajena = self.enterContext(Casa())

    def iniciar_con(self, catalogo):
        return self.iniciar(instalar(self.prefijo.ruta, catalogo))

    def llenar(self, *rutas):
        for ruta in rutas:
            self.casa.escribir(ruta, os.urandom(500_000))

    def test_un_enlace_hacia_fuera_y_una_carpeta_protegida_se_quedan_y_lo_demas_se_mueve(self):
        self.ajena.escribir("dentro/ajeno.bin", os.urandom(500_000))
        self.llenar(".cache/buena/a.bin", ".ssh/cache/b.bin")
        os.symlink(self.ajena.ruta, self.casa.en(".cache/enlazada"))
        antes = inventario(self.ajena.ruta)
        programa = self.iniciar_con([regla("fuga", "~/.cache/enlazada/dentro"), regla("claves", "~/.ssh/cache"),
                                     regla("buena", "~/.cache/buena")])
        pantalla = PantallaCaches(programa.ventana())
        pantalla.esperar_medida()
        pantalla.marcar_seguros(3)
        fuga = f"El enlace apunta fuera de tu carpeta: {self.ajena.en('dentro')}"
        claves = f"Contiene un componente protegido (.ssh): {self.casa.en('.ssh/cache')}"
        hoja = pantalla.simular()
        hoja.esperar(f"Fuga: {fuga}")
        hoja.esperar(f"Claves: {claves}")
        hoja.esperar(contiene="1 elementos se moverían a la Papelera")
        pantalla.cerrar_simulacion()
        mensaje = pantalla.mover(3)
        self.assertTrue(mensaje.startswith("Movidos 1. 2 fallos: "), mensaje)
        self.assertIn(f"Fuga: {fuga}", mensaje)
        self.assertIn(f"Claves: {claves}", mensaje)
        self.salir_sin_quejas(programa)
        self.assertEqual(inventario(self.ajena.ruta), antes)
        self.assertTrue(os.path.exists(self.casa.en(".ssh/cache/b.bin")))
        self.assertEqual(listar(self.casa.ruta), [self.casa.en(".cache/buena/a.bin")])

    def test_una_regla_manual_no_se_puede_marcar(self):
        self.llenar(".cache/mano/a.bin", ".cache/buena/a.bin")
        programa = self.iniciar_con([regla("mano", "~/.cache/mano", risk="manual"),
                                     regla("buena", "~/.cache/buena")])
        pantalla = PantallaCaches(programa.ventana())
        pantalla.esperar_medida()
        pantalla.interruptor("Mano").pulsar()
        pantalla.interruptor("Buena").alternar()
        programa.ventana().esperar(contiene="1 seleccionado ")
        self.assertFalse(pantalla.interruptor("Mano").marcado)
        self.salir_sin_quejas(programa)

    def test_sin_catalogo_lo_dice(self):
        self.comprobar_error(None, "No se encontró rules.json dentro de la app. Recompila con build-app.sh.")

    def test_un_catalogo_roto_dice_por_que_no_se_leyo(self):
        self.comprobar_error(b'[{"id": "solo"}]', "rules.json no se pudo leer: ")

    def comprobar_error(self, catalogo, mensaje):
        programa = self.iniciar_con(catalogo)
        ventana = programa.ventana()
        ventana.esperar("Cachés", FILA).pulsar()
        ventana.esperar(contiene=mensaje)
        self.salir_sin_quejas(programa)

    def test_un_archivo_de_la_papelera_con_el_mismo_nombre_no_se_pierde(self):
        self.llenar(".cache/una/igual.bin", ".cache/otra/igual.bin")
        programa = self.iniciar_con([regla("una", "~/.cache/una"), regla("otra", "~/.cache/otra")])
        pantalla = PantallaCaches(programa.ventana())
        pantalla.esperar_medida()
        pantalla.marcar_seguros(2)
        self.assertIn("Movidos 2 elementos", pantalla.mover(2))
        self.salir_sin_quejas(programa)
        esperadas = [self.casa.en(".cache/otra/igual.bin"), self.casa.en(".cache/una/igual.bin")]
        self.assertEqual(listar(self.casa.ruta), esperadas)


if __name__ == "__main__":
    unittest.main()
