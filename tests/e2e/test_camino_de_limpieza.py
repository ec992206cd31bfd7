"""The whole road of a clean-up, as a person walks it, and back again."""

import json
import os
import stat
import time
import unittest

from accesible import BOTON
from arbol import inventario
from caches import PantallaCaches
from papelera import listar, restaurar_todo
from prueba import PruebaDeEscritorio

# Folders of the catalogue that are emptied, with what the test puts there.
CACHES = {
    ".cache/pip": {"http/aa/rueda.whl": 0o600, "selfcheck.json": 0o444},
    ".cache/thumbnails": {"large/miniatura niño.png": 0o640},
    ".npm/_cacache": {"content-v2/sha512/de/ad": 0o644},
}
ELEMENTOS = [".cache/pip/http", ".cache/pip/selfcheck.json", ".cache/thumbnails/large", ".npm/_cacache/content-v2"]
REGLAS = {"linux-pip", "linux-thumbnails", "linux-npm-cacache"}


class ElCaminoDeUnaLimpieza(PruebaDeEscritorio):
    def setUp(self):
        super().setUp()
        for carpeta, archivos in CACHES.items():
            for archivo, modo in archivos.items():
                ruta = self.casa.escribir(f"{carpeta}/{archivo}", os.urandom(1_500_000), modo)
                os.utime(ruta, ns=(1_700_000_000_123_456_789, 1_600_000_000_987_654_321))
        os.symlink("rueda.whl", self.casa.en(".cache/pip/http/aa/enlace"))
        self.casa.escribir("Documents/carta.txt", "intacta")
        self.antes = inventario(self.casa.ruta)

    def lo_de_antes(self):
        """What the home holds now of all that the test put there."""
        return {ruta: ficha for ruta, ficha in inventario(self.casa.ruta).items() if ruta in self.antes}

    def test_simular_mover_y_restaurar_no_pierde_ni_un_byte(self):
        programa = self.iniciar()
        pantalla = PantallaCaches(programa.ventana())
        pantalla.esperar_medida()
        pantalla.marcar_seguros(len(CACHES))
        self.comprobar_simulacion(pantalla)
        inicio = int(time.time())
        mensaje = pantalla.mover(len(CACHES))
        self.assertRegex(mensaje, r"^Movidos 4 elementos.* MB a la Papelera$")
        self.comprobar_papelera()
        self.comprobar_historial(inicio)
        programa.ventana().esperar(contiene=" libres")
        self.salir_sin_quejas(programa)
        restaurar_todo(self.casa.ruta)
        self.assertEqual(self.lo_de_antes(), self.antes)
        self.assertEqual(listar(self.casa.ruta), [])

    def test_cancelar_la_pregunta_no_mueve_nada(self):
        programa = self.iniciar()
        pantalla = PantallaCaches(programa.ventana())
        pantalla.esperar_medida()
        pantalla.marcar_seguros(len(CACHES))
        pregunta = pantalla.pedir_mover(len(CACHES))
        self.assertIn("Nada se elimina: todo va a la Papelera y puedes recuperarlo desde Finder. "
                      "El espacio se libera al vaciarla.", pregunta.textos())
        pregunta.esperar("Cancelar", BOTON).pulsar()
        programa.ventana().esperar_que_no_haya(contiene="Mover 3 objetivos")
        self.salir_sin_quejas(programa)
        self.assertEqual(self.lo_de_antes(), self.antes)

    def test_lo_movido_aparece_en_el_historial_tambien_tras_volver_a_empezar(self):
        programa = self.iniciar()
        pantalla = PantallaCaches(programa.ventana())
        pantalla.esperar_medida()
        pantalla.marcar_seguros(len(CACHES))
        pantalla.mover(len(CACHES))
        self.salir_sin_quejas(programa)
        otra = self.iniciar()
        otra.ventana().esperar("Historial", "list item").pulsar()
        otra.ventana().esperar(contiene="selfcheck.json")
        self.salir_sin_quejas(otra)

    def comprobar_simulacion(self, pantalla):
        hoja = pantalla.simular()
        hoja.esperar("No se moverá ningún archivo en esta vista previa.")
        hoja.esperar(contiene="4 elementos se moverían a la Papelera")
        pantalla.cerrar_simulacion()
        self.assertEqual(self.lo_de_antes(), self.antes, "una simulación no toca nada")

    def comprobar_papelera(self):
        self.assertEqual(listar(self.casa.ruta), sorted(map(self.casa.en, ELEMENTOS)))
        for carpeta in CACHES:
            self.assertEqual(os.listdir(self.casa.en(carpeta)), [], "la carpeta queda, vacía")
        papelera = self.casa.en(".local/share/Trash")
        self.assertEqual(stat.S_IMODE(os.stat(papelera).st_mode), 0o700)
        esperado = {ruta: ficha for ruta, ficha in self.antes.items()
                    if not any(ruta == e or ruta.startswith(e + "/") for e in ELEMENTOS)}
        self.assertEqual(self.lo_de_antes(), esperado, "nada más se movió")

    def comprobar_historial(self, inicio):
        archivo = os.path.join(self.casa.datos, "historial.json")
        self.assertEqual(stat.S_IMODE(os.stat(archivo).st_mode), 0o600)
        self.assertEqual(stat.S_IMODE(os.stat(self.casa.datos).st_mode), 0o700)
        with open(archivo) as texto:
            entradas = json.load(texto)
        self.assertEqual(sorted(e["ruta"] for e in entradas), sorted(map(self.casa.en, ELEMENTOS)))
        self.assertEqual({e["regla"] for e in entradas}, REGLAS)
        self.assertEqual(len({e["id"] for e in entradas}), len(entradas))
        for entrada in entradas:
            self.assertEqual(set(entrada), {"id", "ruta", "bytes", "fecha", "regla"})
            self.assertGreater(entrada["bytes"], 1_000_000)
            fecha = time.strptime(entrada["fecha"], "%Y-%m-%dT%H:%M:%SZ")
            self.assertGreaterEqual(time.mktime(fecha) - time.timezone, inicio)


if __name__ == "__main__":
    unittest.main()
