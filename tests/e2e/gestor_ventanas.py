"""A real window manager on the virtual display, and what it knows of the windows."""

import subprocess

from esperar import esperar
from procesos import iniciar, terminar


class ConGestorDeVentanas:
    """For a test that needs one: starts it in `setUp` and ends it with the test."""

    def setUp(self):
        super().setUp()
        gestor = iniciar(["openbox", "--sm-disable"], self.escritorio.registro("openbox"),
                         self.escritorio.entorno(self.casa.ruta))
        self.addCleanup(terminar, gestor)
        esperar(lambda: "window id" in self.xprop("-root", "_NET_SUPPORTING_WM_CHECK"), "el gestor de ventanas")

    def xprop(self, *que):
        return subprocess.run(["xprop", "-display", self.escritorio.display, *que], capture_output=True,
                              text=True).stdout

    def numero(self, titulo="Ovanta"):
        """The window with this title, as the window manager lists it; None while there is none."""
        numeros = self.xprop("-root", "_NET_CLIENT_LIST").rpartition("#")[2].split(",")
        return next((n for n in map(str.strip, numeros) if n and f'"{titulo}"' in self.xprop("-id", n, "WM_NAME")),
                    None)
