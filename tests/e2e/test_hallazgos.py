"""The screens of an analysis, from the first look to the Trash and after."""

import os
import subprocess
import threading
import time
import unittest

from accesible import BOTON
from esperar import esperar
from hallazgos import PantallaHallazgos
from papelera import listar, restaurar_todo
from prueba import PROGRAMAS, PruebaDeEscritorio

MEGA = 1_000_000
TODAS = "Marcar todas menos la original"
A_LA_PAPELERA = "Mover a la Papelera"


class LosHallazgos(PruebaDeEscritorio):
    def archivo(self, nombre, semilla, megas=2, dias=1):
        """A file in Downloads, equal to all others of the same seed and size. It takes no room."""
        ruta = self.casa.escribir(f"Downloads/{nombre}", semilla)
        os.truncate(ruta, megas * MEGA)
        self.fechar(ruta, dias)
        return ruta

    @staticmethod
    def fechar(ruta, dias):
        hoy = time.time()
        os.utime(ruta, (hoy - dias * 86400,) * 2)

    def llenar(self, cuantos=3000):
        """What an analysis passes by: small files in many folders."""
        for i in range(cuantos):
            self.casa.escribir(f"Downloads/poca cosa/{i // 100}/{i}.txt", str(i))

    def duplicados(self, programa):
        return PantallaHallazgos(programa.ventana(), "Duplicados")

    def test_marca_confirma_mueve_y_restaura(self):
        self.llenar()
        vieja = self.archivo("boda.mov", "boda", 3, 40)
        copias = [self.archivo("boda (1).mov", "boda", 3, 20), self.archivo("viaje/boda.mov copia", "boda", 3, 10)]
        os.link(copias[0], copias[0] + " enlace")
        copias.append(copias[0] + " enlace")
        programa = self.iniciar()
        pantalla = self.duplicados(programa)
        pantalla.ventana.esperar("Busca copias idénticas")
        pantalla.analizar()
        pantalla.ventana.esperar("1 grupos · 6 MB de tamaño lógico extra")
        pantalla.ventana.esperar("4 copias de 3 MB")
        pantalla.casilla("boda.mov").pulsar()
        self.assertFalse(pantalla.casilla("boda.mov").marcado, "la original se queda")
        pantalla.marcar("boda (1).mov")
        esperar(lambda: pantalla.casilla("boda (1).mov enlace").marcado, "que se marque su enlace físico")
        pantalla.ventana.esperar(TODAS, BOTON).pulsar()
        pregunta = pantalla.pedir_mover("¿Mover 3 copias?")
        pregunta.esperar("Cancelar", BOTON).pulsar()
        pantalla.ventana.esperar_que_no_haya("¿Mover 3 copias?")
        self.assertEqual(listar(self.casa.ruta), [])
        resultado = pantalla.mover("¿Mover 3 copias?", A_LA_PAPELERA)
        self.assertTrue(resultado.startswith("Movidas 3 copias · "), resultado)
        pantalla.ventana.esperar("Todo está en orden")
        pantalla.ventana.esperar_que_no_haya("Desmarcar", BOTON)
        self.salir_sin_quejas(programa)
        self.assertEqual(listar(self.casa.ruta), sorted(copias))
        self.assertTrue(os.path.exists(vieja))
        restaurar_todo(self.casa.ruta)
        self.assertTrue(all(map(os.path.exists, copias)))

    def test_lo_mas_pesado_se_marca_en_varias_pestanas_y_se_mueve_de_una_vez(self):
        imagen = self.archivo("Captura del editor.dmg", "editor", 5, 200)
        self.archivo("carta.pdf", "carta", 2)
        dependencias = self.casa.en("proyecto/node_modules")
        self.casa.escribir("proyecto/node_modules/paquete/indice.js", os.urandom(2 * MEGA))
        programa = self.iniciar()
        pantalla = PantallaHallazgos(programa.ventana(), "Lo más pesado")
        pantalla.ventana.esperar("Encuentra lo que ocupa más")
        pantalla.analizar()
        for titulo in ("Archivos grandes (2)", "Dependencias (1)", "Descargas viejas (1)", "Capturas (1)",
                       "Instaladores (1)"):
            pantalla.ventana.esperar(titulo, "page tab")
        pantalla.marcar("Captura del editor.dmg")
        pantalla.ventana.esperar("Instaladores (1)", "page tab").pulsar()
        pantalla.ventana.esperar_que_no_haya("carta.pdf")
        self.assertTrue(pantalla.casilla("Captura del editor.dmg").marcado)
        pantalla.ventana.esperar("1 marcados · 5 MB")
        pantalla.ventana.esperar("Dependencias (1)", "page tab").pulsar()
        pantalla.marcar("node_modules")
        resultado = pantalla.mover("¿Mover 2 elementos?", "Mover y liberar ")
        self.assertTrue(resultado.startswith("Movidos 2 · "), resultado)
        pantalla.ventana.esperar("Dependencias (0)", "page tab")
        pantalla.ventana.esperar("Archivos grandes (1)", "page tab")
        self.salir_sin_quejas(programa)
        self.assertEqual(listar(self.casa.ruta), sorted([imagen, dependencias]))

    def test_detener_no_publica_nada_y_se_puede_volver_a_empezar(self):
        self.llenar(20_000)
        gigantes = [self.archivo(f"gigante {i}.bin", "g", 40_000) for i in range(2)]
        programa = self.iniciar()
        pantalla = self.duplicados(programa)
        pantalla.empezar()
        pantalla.ventana.esperar("Analizando…")
        pantalla.ventana.esperar("Detener", BOTON).pulsar()
        pantalla.esperar_fin()
        self.assertFalse(pantalla.ventana.buscar(contiene=" copias de "))
        for ruta in gigantes:
            os.truncate(ruta, 2 * MEGA)
        pantalla.analizar()
        pantalla.ventana.esperar("2 copias de 2 MB")
        self.salir_sin_quejas(programa)

    def test_una_copia_que_cambio_a_espaldas_del_programa_se_queda_con_su_linea(self):
        self.archivo("uno.bin", "igual", dias=30)
        cambiada = self.archivo("dos.bin", "igual", dias=20)
        intacta = self.archivo("tres.bin", "igual", dias=10)
        programa = self.iniciar()
        pantalla = self.duplicados(programa)
        pantalla.analizar()
        pantalla.ventana.esperar(TODAS, BOTON).pulsar()
        with open(cambiada, "r+b") as archivo:
            archivo.write(b"otra cosa")
        resultado = pantalla.mover("¿Mover 2 copias?", A_LA_PAPELERA)
        self.assertTrue(resultado.startswith("Movidas 1 copias · "), resultado)
        pantalla.ventana.esperar(contiene="dos.bin: cambió después de compararse", papel="label")
        self.salir_sin_quejas(programa)
        self.assertEqual(listar(self.casa.ruta), [intacta])
        self.assertTrue(os.path.exists(cambiada))

    def iniciar_sin_privilegios(self):
        """Root may do anything in any folder, so its programs must give that up."""
        if os.getuid() != 0:
            return self.iniciar()
        return self.iniciar("/usr/bin/setpriv", argumentos=[
            "--bounding-set=-dac_override,-dac_read_search", os.path.join(PROGRAMAS, "OvantaBar")])

    def test_una_carpeta_que_pierde_el_permiso_se_queda_con_su_linea_y_lo_demas_se_mueve(self):
        self.archivo("uno.bin", "igual", dias=30)
        encerrada = self.archivo("cerrada/dos.bin", "igual", dias=20)
        libre = self.archivo("tres.bin", "igual", dias=10)
        self.archivo("oculta/cuatro.bin", "igual", dias=5)
        os.chmod(self.casa.en("Downloads/oculta"), 0)
        self.addCleanup(os.chmod, self.casa.en("Downloads/oculta"), 0o755)
        programa = self.iniciar_sin_privilegios()
        pantalla = self.duplicados(programa)
        pantalla.analizar()
        pantalla.ventana.esperar("3 copias de 2 MB")
        pantalla.ventana.esperar(TODAS, BOTON).pulsar()
        os.chmod(self.casa.en("Downloads/cerrada"), 0o555)
        self.addCleanup(os.chmod, self.casa.en("Downloads/cerrada"), 0o755)
        resultado = pantalla.mover("¿Mover 2 copias?", A_LA_PAPELERA)
        self.assertTrue(resultado.startswith("Movidas 1 copias · "), resultado)
        pantalla.ventana.esperar(contiene="dos.bin", papel="label")
        self.salir_sin_quejas(programa)
        self.assertEqual(listar(self.casa.ruta), [libre])
        self.assertTrue(os.path.exists(encerrada))

    def test_archivos_que_se_esfuman_durante_el_analisis_no_estorban(self):
        self.llenar(10_000)
        for i in range(40):
            self.archivo(f"fijo {i} a.bin", f"fijo {i}", dias=30)
            self.archivo(f"fijo {i} b.bin", f"fijo {i}")
            self.archivo(f"fugaz/fugaz {i}.bin", f"fijo {i}")
        programa = self.iniciar()
        pantalla = self.duplicados(programa)
        borrador = threading.Thread(target=subprocess.run, args=(["rm", "-r", self.casa.en("Downloads/fugaz"),
                                                                  self.casa.en("Downloads/poca cosa")],))
        pantalla.empezar()
        borrador.start()
        borrador.join()
        pantalla.esperar_fin()
        pantalla.analizar()
        pantalla.ventana.esperar("40 grupos · 80 MB de tamaño lógico extra")
        self.salir_sin_quejas(programa)


if __name__ == "__main__":
    unittest.main()
