"""Copies that share their blocks: what the screen says that really leaves the disk, on file systems that
can clone."""

import os
import shutil
import subprocess
import tempfile
import unittest

from accesible import BOTON
from disco import PUEDE_MONTAR, desmontar
from hallazgos import PantallaHallazgos
from papelera import listar
from prueba import PruebaDeEscritorio

MEGA = 1_000_000
EN_EL_DISCO = "En el disco ocupan "


def puede_formatear(tipo):
    return PUEDE_MONTAR and os.path.exists("/dev/loop-control") and shutil.which(f"mkfs.{tipo}")


class LosClones(PruebaDeEscritorio):
    def montar(self, tipo):
        """A home on a fresh disk of this kind."""
        imagen = self.enterContext(tempfile.NamedTemporaryFile(prefix="ovanta-imagen."))
        imagen.truncate(400 << 20)
        subprocess.run([f"mkfs.{tipo}", "-q", imagen.name], check=True)
        hecho = subprocess.run(["mount", "-o", "loop", imagen.name, self.casa.ruta], capture_output=True, text=True)
        if hecho.returncode != 0:
            self.skipTest(f"aquí no se puede montar {tipo}: {hecho.stderr.strip()}")
        self.addCleanup(desmontar, self.casa.ruta)

    def copiar(self, de, a, **como):
        opciones = [f"--{clave}={valor}" for clave, valor in como.items()]
        subprocess.run(["cp", "--preserve=timestamps", *opciones, de, a], check=True)

    def comprobar(self, tipo):
        self.montar(tipo)
        original = self.casa.escribir("Downloads/a original.bin", os.urandom(3 * MEGA))
        os.utime(original, (1_700_000_000,) * 2)
        clon, entera = self.casa.en("Downloads/b clon.bin"), self.casa.en("Downloads/c entera.bin")
        self.copiar(original, clon, reflink="always")
        self.copiar(original, entera, reflink="never")
        os.utime(clon, (1_700_000_001,) * 2)
        os.utime(entera, (1_700_000_002,) * 2)
        subprocess.run(["sync", "-f", entera], check=True)
        programa = self.iniciar()
        pantalla = PantallaHallazgos(programa.ventana(), "Duplicados")
        pantalla.analizar()
        pantalla.ventana.esperar("1 grupos · 6 MB de tamaño lógico extra")
        pantalla.marcar("b clon.bin")
        pantalla.ventana.esperar(contiene=EN_EL_DISCO + "0 ", papel="label")
        pantalla.marcar("c entera.bin")
        pantalla.ventana.esperar("2 copias · 6 MB")
        pantalla.ventana.esperar(contiene=EN_EL_DISCO + "3", papel="label")
        pantalla.casilla("b clon.bin").alternar()
        pantalla.ventana.esperar("1 copias · 3 MB")
        pantalla.ventana.esperar_que_no_haya(contiene=EN_EL_DISCO)
        pantalla.ventana.esperar("Marcar todas menos la original", BOTON).pulsar()
        resultado = pantalla.mover("¿Mover 2 copias?", "Mover a la Papelera")
        self.assertTrue(resultado.startswith("Movidas 2 copias · "), resultado)
        self.salir_sin_quejas(programa)
        self.assertEqual(listar(self.casa.ruta), [clon, entera])

    @unittest.skipUnless(puede_formatear("btrfs"), "aquí no se puede montar btrfs")
    def test_en_btrfs_los_bloques_compartidos_se_descuentan(self):
        self.comprobar("btrfs")

    @unittest.skipUnless(puede_formatear("xfs"), "aquí no se puede montar xfs")
    def test_en_xfs_los_bloques_compartidos_se_descuentan(self):
        self.comprobar("xfs")


if __name__ == "__main__":
    unittest.main()
