"""The analysis on disks that hang, fail or fill up: nothing waits for them and nothing is lost to them."""

import os
import subprocess
import sys
import time
import unittest

from accesible import BOTON, FILA
from disco import PUEDE_ENFERMAR, PUEDE_MONTAR, DiscoChico, DiscoEnfermo
from esperar import esperar
from hallazgos import PantallaHallazgos
from papelera import listar
from prueba import PROGRAMAS, PruebaDeEscritorio
from ventanas import abiertas

MEGA = 1_000_000
TODAS = "Marcar todas menos la original"
A_LA_PAPELERA = "Mover a la Papelera"


def par(carpeta, nombre, megas=2, copias=2):
    """Equal files that take no room, the first the oldest. Returns their paths."""
    rutas = [os.path.join(carpeta, f"{nombre} {i}.bin") for i in range(copias)]
    for i, ruta in enumerate(rutas):
        with open(ruta, "w") as archivo:
            archivo.write(nombre)
        os.truncate(ruta, megas * MEGA)
        os.utime(ruta, (1_700_000_000 + i,) * 2)
    return rutas


@unittest.skipUnless(PUEDE_ENFERMAR, "aquí no se puede montar con FUSE")
class UnDiscoEnfermo(PruebaDeEscritorio):
    def setUp(self):
        super().setUp()
        self.disco = self.enterContext(DiscoEnfermo(self.casa.en("Downloads")))

    def abrir(self, seccion="Duplicados"):
        self.programa = self.iniciar()
        self.addCleanup(self.disco.sanar)  # before the program is ended, which the disk would hold up
        return PantallaHallazgos(self.programa.ventana(), seccion)

    def detener(self, pantalla, etapa):
        boton = pantalla.ventana.esperar("Detener", BOTON)
        pulsado = time.monotonic()
        boton.pulsar()
        esperar(lambda: not boton.visible, "que se detenga")
        print(f"detener en «{etapa}»: {time.monotonic() - pulsado:.2f} s", file=sys.stderr)

    def test_detener_en_cada_etapa_no_espera_al_disco_ni_publica_nada(self):
        os.mkdir(os.path.join(self.disco.carpeta, "sub"))
        par(self.disco.carpeta, "primero")
        pantalla = self.abrir()
        pantalla.analizar()
        pantalla.ventana.esperar("1 grupos · 2 MB de tamaño lógico extra")
        par(self.disco.carpeta, "segundo")
        for etapa, operacion, regla in (
                ("recorrido", "readdir", {"ruta": "/sub"}),
                ("tamaños", "getattr", {"ruta": "segundo 0"}),
                ("apertura", "open", {"ruta": "segundo 0"}),
                ("cabezas", "read", {"ruta": "segundo 0"}),
                ("contenidos", "read", {"ruta": "segundo 1", "desde": MEGA})):
            with self.subTest(etapa):
                self.disco.enfermar(operacion, **regla)
                pantalla.empezar()
                self.disco.esperar_sintoma()
                self.detener(pantalla, etapa)
                pantalla.ventana.esperar("1 grupos · 2 MB de tamaño lógico extra")
                self.assertFalse(pantalla.ventana.buscar("segundo 0.bin"))
                self.disco.sanar()
        pantalla.analizar()
        pantalla.ventana.esperar("2 grupos · 4 MB de tamaño lógico extra")
        self.salir_sin_quejas(self.programa)

    def test_detener_en_las_carpetas_deja_lo_publicado_junto_a_lo_de_antes(self):
        dependencias = os.path.join(self.disco.carpeta, "p/node_modules")
        os.makedirs(dependencias)
        par(self.disco.carpeta, "captura")
        pantalla = self.abrir("Lo más pesado")
        for herramienta in ("find", "du"):
            with self.subTest(herramienta):
                self.disco.enfermar("readdir", "getattr", ruta="node_modules" if herramienta == "du" else "",
                                    programa=herramienta)
                pantalla.empezar()
                self.disco.esperar_sintoma()
                pantalla.ventana.esperar("Archivos grandes (2)", "page tab")
                self.detener(pantalla, herramienta)
                pantalla.ventana.esperar("Dependencias (0)", "page tab")
                pantalla.ventana.esperar("Capturas (0)", "page tab")
                self.disco.sanar()
        pantalla.analizar()
        pantalla.ventana.esperar("Dependencias (1)", "page tab")
        pantalla.ventana.esperar("Capturas (2)", "page tab")
        self.salir_sin_quejas(self.programa)

    def test_con_el_disco_colgado_la_ventana_vive_y_se_puede_salir_y_volver_a_entrar(self):
        par(self.disco.carpeta, "foto")
        pantalla = self.abrir()
        self.disco.enfermar("readdir", "getattr", "open", "read", "statfs")
        for intento in ("la primera vez", "otra vez"):
            pantalla.empezar()
            self.disco.esperar_sintoma()
            pantalla.ventana.esperar("Historial", FILA).pulsar()
            pantalla.ventana.esperar("Duplicados", FILA).pulsar()
            pantalla.ventana.esperar("Analizando…")
            self.detener(pantalla, intento)
            pantalla.ventana.esperar("Busca copias idénticas")
        pantalla.empezar()
        pantalla.ventana.esperar("Analizando…")
        self.programa.proceso.terminate()
        # A thread of it is still in the disk, so the process cannot end; for the user it has.
        esperar(lambda: not abiertas(self.escritorio), "que se cierre la ventana")
        esperar(lambda: not self.escritorio.anfitrion_bandeja.iconos, "que se vaya el icono")
        self.assertIsNone(self.programa.proceso.poll())
        otro = self.iniciar()
        otro.ventana().esperar("Duplicados", FILA)
        self.salir_sin_quejas(otro)
        self.disco.sanar()
        self.assertEqual(self.programa.codigo_de_salida(), 0)
        self.assertEqual(self.programa.quejas(), [])

    def test_un_error_de_lectura_vale_como_el_final_del_archivo(self):
        rotos = par(self.disco.carpeta, "roto", 3)
        par(self.disco.carpeta, "sano", 4)
        # Different behind the place that cannot be read.
        for i, ruta in enumerate(rotos):
            with open(ruta, "r+b") as archivo:
                archivo.seek(2 * MEGA)
                archivo.write(bytes([i + 1]))
        self.disco.enfermar("read", ruta="roto", desde=MEGA, error="EIO")
        pantalla = self.abrir()
        pantalla.analizar()
        pantalla.ventana.esperar("2 grupos · 7 MB de tamaño lógico extra")
        pantalla.ventana.esperar("2 copias de 3 MB")
        salida = self.casa.en("grupos")
        subprocess.run([os.path.join(PROGRAMAS, "ovanta-banco"), "dups", self.disco.punto, "--out", salida],
                       check=True, stdout=subprocess.DEVNULL)
        with open(salida, "rb") as grupos:
            hallados = sorted(sorted(map(os.path.basename, g.split(b"\0"))) for g in grupos.read().split(b"\0\0") if g)
        self.assertEqual(hallados, [[b"roto 0.bin", b"roto 1.bin"], [b"sano 0.bin", b"sano 1.bin"]])
        self.disco.sanar()
        pantalla.analizar()
        pantalla.ventana.esperar("1 grupos · 4 MB de tamaño lógico extra")
        self.salir_sin_quejas(self.programa)

    def test_lo_que_crece_o_se_esfuma_mientras_se_compara_no_estorba(self):
        rutas = par(self.disco.carpeta, "foto", 3, copias=4)
        pantalla = self.abrir()
        self.disco.enfermar("read", ruta="foto 3", desde=MEGA)
        pantalla.empezar()
        self.disco.esperar_sintoma()
        with open(rutas[1], "ab") as crece:
            crece.write(b"mas")
        os.remove(rutas[2])
        self.disco.sanar()
        pantalla.esperar_fin()
        self.assertFalse(pantalla.ventana.buscar("foto 1.bin"), "ya no es igual")
        pantalla.ventana.esperar("foto 3.bin")
        pantalla.analizar()
        pantalla.ventana.esperar("2 copias de 3 MB")
        self.salir_sin_quejas(self.programa)


@unittest.skipUnless(PUEDE_MONTAR, "aquí no se puede montar")
class UnDiscoLleno(PruebaDeEscritorio):
    def test_con_el_disco_lleno_nada_se_pierde_y_con_sitio_se_mueve(self):
        disco = self.enterContext(DiscoChico(self.casa.ruta, 16 * MEGA))
        descargas = self.casa.en("Downloads")
        os.mkdir(descargas)
        rutas = par(descargas, "foto", copias=4)
        programa = self.iniciar()
        pantalla = PantallaHallazgos(programa.ventana(), "Duplicados")
        pantalla.analizar()
        disco.llenar()
        pantalla.analizar()
        pantalla.ventana.esperar(TODAS, BOTON).pulsar()
        resultado = pantalla.mover("¿Mover 3 copias?", A_LA_PAPELERA)
        self.assertEqual(resultado, "Movidas 0 copias · 0 GB")
        pantalla.ventana.esperar(contiene="espacio", papel="label")
        pantalla.ventana.esperar("4 copias de 2 MB")
        self.assertTrue(all(map(os.path.exists, rutas)))
        disco.vaciar()
        pantalla.ventana.esperar(TODAS, BOTON).pulsar()
        resultado = pantalla.mover("¿Mover 3 copias?", A_LA_PAPELERA)
        self.assertTrue(resultado.startswith("Movidas 3 copias · "), resultado)
        self.salir_sin_quejas(programa)
        self.assertEqual(listar(self.casa.ruta), rutas[1:])
        self.assertEqual(os.listdir(descargas), ["foto 0.bin"])


if __name__ == "__main__":
    unittest.main()
