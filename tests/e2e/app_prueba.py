"""An application of the virtual desktop, small in all but its memory, to be closed and forced."""

import os
import shutil

from esperar import esperar
from procesos import iniciar, terminar
from prueba import PROGRAMAS

POR_SU_VENTANA = 7  # its exit code when its window was closed
MIB = 400  # more than what else runs here usually takes, so that it is among the first


class AppDePrueba:
    """Context manager. `modo` is what tests/x11/ventana/main.cpp calls so. The application has an entry
    of its own in `casa`, under which the program knows it as `nombre`; `titulo` is its window's."""

    def __init__(self, escritorio, casa, modo, nombre, mib=MIB):
        self.nombre = nombre
        # Unlike any program of another run of these tests on this machine: that one must not end with it.
        clave = f"prueba-{modo}-{os.getpid()}"
        self.titulo = clave
        self.binario = casa.en(f"opt/{clave}/{clave}")
        os.makedirs(os.path.dirname(self.binario))
        shutil.copy(os.path.join(PROGRAMAS, "ventana_x11"), self.binario)
        casa.escribir(f".local/share/applications/{clave}.desktop",
                      f"[Desktop Entry]\nType=Application\nName={nombre}\nExec={self.binario}\n")
        self._orden = [self.binario, modo, clave, str(mib)]
        self._entorno = escritorio.entorno(casa.ruta)
        self._registro = escritorio.registro(clave)
        self._dicho = casa.en(f"{clave}.txt")

    def __enter__(self):
        with open(self._dicho, "wb") as salida:
            self.proceso = iniciar(self._orden, self._registro, self._entorno, stdout=salida)
        self.esperar_que_diga("listo")
        return self

    def __exit__(self, *_):
        terminar(self.proceso)

    def veces(self, linea):
        """How often it said this line."""
        with open(self._dicho) as dicho:
            return dicho.read().splitlines().count(linea)

    def esperar_que_diga(self, linea):
        esperar(lambda: self.veces(linea), f"que {self.nombre} diga {linea}")

    @property
    def vive(self):
        return self.proceso.poll() is None

    def codigo_de_salida(self):
        """Waits for its end; minus the signal where one ended it."""
        return self.proceso.wait(30)

    def matar(self):
        self.proceso.kill()
        return self.codigo_de_salida()
