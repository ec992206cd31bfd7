"""The base of the tests that drive programs from outside.

`OVANTA_BIN` is the folder with the programs. All tests of a process share one desktop; each has a
home of its own. After a failure the last screen and what the programs said are kept in `OVANTA_E2E`.
"""

import atexit
import os
import shutil
import unittest

from escritorio import Escritorio
from pantalla import capturar
from programa import Casa, Programa

PROGRAMAS = os.path.abspath(os.environ.get("OVANTA_BIN", "build/release/bin"))
_comun = None


def escritorio_comun():
    global _comun
    if _comun is None:
        _comun = Escritorio()
        _comun.__enter__()
        atexit.register(_comun.__exit__, None, None, None)
    return _comun


class PruebaDeEscritorio(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.escritorio = escritorio_comun()

    def setUp(self):
        self.casa = self.enterContext(Casa())
        self.addCleanup(self._guardar_si_fallo)

    def iniciar(self, programa="OvantaBar", hogar=None, argumentos=(), **otros):
        """Starts a program in the home of this test, or another one, until the end of the test."""
        binario = programa if os.path.isabs(programa) else os.path.join(PROGRAMAS, programa)
        return self.enterContext(Programa(self.escritorio, binario, hogar or self.casa.ruta, argumentos, **otros))

    def salir_sin_quejas(self, programa, **como):
        duracion = programa.salir(**como)
        self.assertEqual(programa.quejas(), [])
        return duracion

    def _guardar_si_fallo(self):
        if not any(error for _, error in self._outcome.result.failures + self._outcome.result.errors
                   if _ is self):
            return
        carpeta = os.path.join(os.environ.get("OVANTA_E2E", "build/e2e"), self.id())
        os.makedirs(carpeta, exist_ok=True)
        capturar(self.escritorio, os.path.join(carpeta, "pantalla.png"))
        shutil.copytree(self.escritorio.registros, carpeta, dirs_exist_ok=True)
