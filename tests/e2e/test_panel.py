"""The panel of the tray: a click opens it, it says how things stand, and leads on from there."""

import unittest
from contextlib import nullcontext

from accesible import BOTON, FILA
from esperar import esperar
from prueba import PruebaDeEscritorio
from teclado import enfocada, quitar_foco, teclear
from ventanas import abiertas, compositor, esperar_abierta, esperar_ninguna, geometria, pedir_cierre

TITULO = "Panel de Ovanta"
BOTONES = ["Revisar y borrar simuladores…", "Abrir Ovanta", "Actualizar ahora", "Salir de Ovanta"]


class ElPanel(PruebaDeEscritorio):
    def en_reposo(self, binario="OvantaBar"):
        """The program with only its icon, and that icon."""
        programa = self.iniciar(binario)
        icono = programa.icono()
        pedir_cierre(self.escritorio, esperar_abierta(self.escritorio))
        esperar_ninguna(self.escritorio)
        return programa, icono

    def abrir(self, programa, icono):
        icono.pulsar()
        panel = programa.panel()
        numero = esperar(lambda: abiertas(self.escritorio, TITULO), "el panel en la pantalla")[0]
        esperar(lambda: enfocada(self.escritorio) == numero, "que el panel tenga el foco")
        return panel

    def esperar_cerrado(self):
        esperar(lambda: not abiertas(self.escritorio, TITULO), "que se cierre el panel")

    def test_dice_como_esta_todo_y_lleva_a_la_ventana_y_a_la_salida(self):
        programa, icono = self.en_reposo()
        panel = self.abrir(programa, icono)
        panel.esperar("Sin datos todavía.")
        textos = panel.textos()
        for texto in ("En vivo", "Procesador", "Memoria", "Red", "Simuladores"):
            self.assertIn(texto, textos)
        for parte in (" libres", "Usado ", "Avisa a ", "Última lectura: ", "↓ ", "↑ "):
            self.assertTrue(any(parte in texto for texto in textos), f"{parte}: {textos}")
        self.assertEqual([b.nombre for b in panel.buscar(papel=BOTON)], BOTONES)

        teclear(self.escritorio, "Escape")
        self.esperar_cerrado()
        self.abrir(programa, icono).esperar("Abrir Ovanta", BOTON).pulsar()
        programa.ventana().esperar("Resumen", FILA)
        self.esperar_cerrado()

        self.abrir(programa, icono).esperar("Salir de Ovanta", BOTON).pulsar()
        self.assertEqual(programa.codigo_de_salida(), 0)
        self.assertEqual(programa.quejas(), [])

    def test_otro_clic_lo_cierra_y_el_siguiente_lo_abre(self):
        programa, icono = self.en_reposo()
        self.abrir(programa, icono)
        icono.pulsar()
        self.esperar_cerrado()
        self.abrir(programa, icono)
        self.salir_sin_quejas(programa)

    def test_al_perder_el_foco_se_cierra(self):
        programa, icono = self.en_reposo()
        self.abrir(programa, icono)
        quitar_foco(self.escritorio)
        self.esperar_cerrado()
        self.salir_sin_quejas(programa)

    def test_con_el_teclado_se_llega_a_los_botones(self):
        programa, icono = self.en_reposo()
        panel = self.abrir(programa, icono)
        for nombre in BOTONES[:2]:
            teclear(self.escritorio, "Tab")
            esperar(lambda: panel.esperar(nombre, BOTON).enfocado, f"que el foco esté en {nombre}")
        teclear(self.escritorio, "Return")
        programa.ventana()
        self.salir_sin_quejas(programa)

    def test_cabe_entero_en_la_pantalla(self):
        programa, icono = self.en_reposo()
        self.abrir(programa, icono)
        (numero,) = abiertas(self.escritorio, TITULO)
        x, y, ancho, alto = geometria(self.escritorio, numero)
        ancho_total, alto_total = map(int, self.escritorio.pantalla.split("x"))
        self.assertTrue(0 <= x and x + ancho <= ancho_total, (x, ancho))
        self.assertTrue(0 <= y and y + alto <= alto_total, (y, alto))
        self.salir_sin_quejas(programa)

    def test_donde_las_ventanas_se_mezclan_trae_su_sombra(self):
        programa, icono = self.en_reposo()
        anchos = []
        for contexto in (nullcontext(), compositor(self.escritorio)):
            with contexto:
                self.abrir(programa, icono)
                (numero,) = abiertas(self.escritorio, TITULO)
                anchos.append(geometria(self.escritorio, numero)[2])
                teclear(self.escritorio, "Escape")
                self.esperar_cerrado()
        self.assertGreater(anchos[1], anchos[0])
        self.salir_sin_quejas(programa)

    def test_en_el_mac_simulado_cuenta_los_simuladores_y_lleva_a_su_seccion(self):
        programa, icono = self.en_reposo("OvantaSimulada")
        panel = self.abrir(programa, icono)
        panel.esperar(contiene="10 en total · ")
        panel.esperar(contiene="3 nuevos ocupan ")
        panel.esperar("Revisar y borrar simuladores…", BOTON).pulsar()
        programa.ventana().esperar("Simuladores", FILA)
        self.esperar_cerrado()
        self.salir_sin_quejas(programa)


if __name__ == "__main__":
    unittest.main()
