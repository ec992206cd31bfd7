"""Starting a program on the virtual desktop and ending it in order."""

import os
import shutil
import signal
import subprocess
import tempfile
import time

from accesible import aplicacion
from esperar import esperar
from procesos import iniciar, terminar, vivos_del_grupo

# What Qt Quick says when a screen is broken.
QUEJAS = ("qrc:", "QML", "QQml", "ReferenceError", "TypeError", "ovanta:", "Sanitizer", "ASSERT")


class Casa:
    """A synthetic home that goes away with the context."""

    def __enter__(self):
        self.ruta = os.path.realpath(tempfile.mkdtemp(prefix="ovanta-casa."))
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.ruta, ignore_errors=True)

    def en(self, relativa):
        return os.path.join(self.ruta, relativa)

    def escribir(self, relativa, contenido, modo=0o644):
        """Makes a file with its folders and returns its path."""
        ruta = self.en(relativa)
        os.makedirs(os.path.dirname(ruta), exist_ok=True)
        with open(ruta, "wb") as archivo:
            archivo.write(contenido if isinstance(contenido, bytes) else contenido.encode())
        os.chmod(ruta, modo)
        return ruta

    @property
    def datos(self):
        """The program's own folder."""
        return self.en("Library/Application Support/Ovanta")


class Programa:
    """Context manager for one run. `salir` ends it in order; a run that is still going at the end of
    the context is killed."""

    _numero = 0

    def __init__(self, escritorio, binario, hogar, argumentos=(), usuario=None, **entorno):
        self.escritorio = escritorio
        self.orden = [binario, *argumentos]
        if usuario is not None:
            self.orden = ["setpriv", f"--reuid={usuario}", f"--regid={usuario}", "--clear-groups", *self.orden]
        self.entorno = escritorio.entorno(hogar, **entorno)
        Programa._numero += 1
        self.registro = escritorio.registro(f"programa-{Programa._numero:02}")

    def __enter__(self):
        self.proceso = iniciar(self.orden, self.registro, self.entorno, stdout=subprocess.DEVNULL)
        return self

    def __exit__(self, *_):
        terminar(self.proceso)

    def raiz(self):
        """The program on the accessibility bus."""
        def hallar():
            assert self.proceso.poll() is None, f"terminó solo ({self.proceso.returncode}):\n{self.errores()}"
            return aplicacion(self.proceso.pid)
        return esperar(hallar, "el programa en el bus de accesibilidad")

    def ventana(self):
        """The open main window."""
        return self.raiz().esperar("Ovanta", visible=True)

    def panel(self):
        """The open panel of the tray."""
        return self.raiz().esperar("Panel de Ovanta", visible=True)

    def icono(self):
        """Its icon in the tray."""
        return esperar(lambda: self.escritorio.anfitrion_bandeja.iconos, "el icono de la bandeja")[0]

    def codigo_de_salida(self, limite=30.0):
        """Waits for the program to end by itself."""
        return self.proceso.wait(limite)

    def salir(self, por_menu=False):
        """Ends the program, by the tray's menu or by the end of the session. Returns the seconds it
        took. It must end well and leave no process behind."""
        inicio = time.monotonic()
        if por_menu:
            self.icono().elegir("Salir de Ovanta")
        else:
            os.kill(self.proceso.pid, signal.SIGTERM)
        codigo = self.codigo_de_salida()
        duracion = time.monotonic() - inicio
        assert codigo == 0, f"terminó con {codigo}:\n{self.errores()}"
        esperar(lambda: not vivos_del_grupo(self.proceso.pid), "que no queden procesos")
        return duracion

    def errores(self):
        with open(self.registro, errors="replace") as archivo:
            return archivo.read()

    def quejas(self):
        """The lines on standard error that tell of a broken screen or program."""
        return [linea for linea in self.errores().splitlines() if any(queja in linea for queja in QUEJAS)]
