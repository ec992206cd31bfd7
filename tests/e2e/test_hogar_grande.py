"""A whole home: fifty thousand files, analysed, marked, moved, and once more. Takes minutes, so it runs
only where OVANTA_E2E_GRANDE is set, to the number of files where that is one."""

import hashlib
import os
import subprocess
import sys
import time
import unittest
from collections import defaultdict

from accesible import BOTON
from hallazgos import PantallaHallazgos
from papelera import listar
from prueba import PruebaDeEscritorio

GENERADOR = os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../bench/generar_hogar.py")
PEDIDO = os.environ.get("OVANTA_E2E_GRANDE", "")
ARCHIVOS = int(PEDIDO) if PEDIDO.isdigit() and int(PEDIDO) > 1 else 50_000
VUELTAS = 3


def contenidos(raiz):
    """Paths by the digest of what they hold."""
    grupos = defaultdict(list)
    for carpeta, _, nombres in os.walk(raiz):
        for nombre in nombres:
            with open(os.path.join(carpeta, nombre), "rb") as archivo:
                grupos[hashlib.file_digest(archivo, "sha256").digest()].append(os.path.join(carpeta, nombre))
    return grupos


def repetidos(grupos):
    return [rutas for rutas in grupos.values() if len(rutas) > 1]


@unittest.skipUnless(PEDIDO, "solo con OVANTA_E2E_GRANDE")
class UnHogarGrande(PruebaDeEscritorio):
    def cabeza(self, cuantos):
        # Spanish parts no number below ten thousand.
        return (f"{cuantos:,}".replace(",", ".") if cuantos >= 10_000 else str(cuantos)) + " grupos · "

    def analizar(self, pantalla):
        inicio = time.monotonic()
        pantalla.empezar()
        pantalla.esperar_fin(limite=300)
        print(f"análisis: {time.monotonic() - inicio:.1f} s", file=sys.stderr)

    def test_analizar_marcar_mover_y_otra_vez(self):
        descargas = self.casa.en("Downloads")
        subprocess.run([sys.executable, GENERADOR, descargas, "--archivos", str(ARCHIVOS), "--mediana", "800"], check=True)
        self.casa.escribir(".config/Ovanta/ajustes.ini", "[General]\nminimoMB=r0\n")
        antes = contenidos(descargas)
        programa = self.iniciar()
        pantalla = PantallaHallazgos(programa.ventana(), "Duplicados")
        self.analizar(pantalla)
        pantalla.ventana.esperar(contiene=self.cabeza(len(repetidos(antes))))
        for vuelta in range(VUELTAS):
            pantalla.ventana.esperar("Marcar todas menos la original", BOTON).pulsar()
            print(pantalla.mover(None, "Mover a la Papelera", limite=300), file=sys.stderr)
            pantalla.ventana.esperar(contiene=self.cabeza(len(repetidos(antes)) - vuelta - 1))
            self.assertFalse(pantalla.ventana.buscar("Lo que no se movió"))
            quedan = contenidos(descargas)
            self.assertEqual(len(repetidos(quedan)), len(repetidos(antes)) - vuelta - 1)
            self.assertEqual(set(quedan), set(antes), "de cada contenido queda uno")
        self.salir_sin_quejas(programa)
        todas = sorted(listar(self.casa.ruta) + [ruta for rutas in quedan.values() for ruta in rutas])
        self.assertEqual(todas, sorted(ruta for rutas in antes.values() for ruta in rutas))


if __name__ == "__main__":
    unittest.main()
