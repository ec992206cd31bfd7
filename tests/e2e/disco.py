"""Disks that fall ill on demand, mounted into the home of a test."""

import importlib.util
import json
import os
import shutil
import subprocess
import sys
import tempfile
import threading

from esperar import esperar
from procesos import hay_espacios_de_montaje

SERVIDOR = os.path.join(os.path.dirname(os.path.abspath(__file__)), "servidor_disco.py")
PUEDE_MONTAR = os.getuid() == 0 and hay_espacios_de_montaje()
PUEDE_ENFERMAR = (PUEDE_MONTAR and os.access("/dev/fuse", os.R_OK | os.W_OK)
                  and importlib.util.find_spec("fusepy") is not None)


def desmontar(punto):
    subprocess.run(["umount", "--lazy", punto], check=True)


class DiscoEnfermo:
    """Context manager. `carpeta` holds what the disk shows at `punto`, and is written past it."""

    def __init__(self, punto):
        self.punto = punto

    def __enter__(self):
        self.carpeta = tempfile.mkdtemp(prefix="ovanta-disco.")
        os.makedirs(self.punto, exist_ok=True)
        self._dicho = []
        self._servidor = subprocess.Popen([sys.executable, SERVIDOR, self.carpeta, self.punto], text=True,
                                          stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        threading.Thread(target=self._escuchar, daemon=True).start()
        esperar(lambda: os.path.ismount(self.punto), "que se monte el disco")
        return self

    def __exit__(self, *_):
        self.sanar()
        desmontar(self.punto)
        self._servidor.stdin.close()
        try:
            self._servidor.wait(10)
        except subprocess.TimeoutExpired:
            self._servidor.kill()
            self._servidor.wait()
        self._servidor.stdout.close()
        shutil.rmtree(self.carpeta)

    def _escuchar(self):
        for linea in self._servidor.stdout:
            self._dicho.append(linea.strip())

    def enfermar(self, *operaciones, **regla):
        """See servidor_disco.py."""
        self._decir(json.dumps({"operacion": operaciones, **regla}))

    def sanar(self):
        self._decir("")

    def _decir(self, linea):
        self._dicho.clear()
        self._servidor.stdin.write(linea + "\n")
        self._servidor.stdin.flush()
        esperar(lambda: "regla" in self._dicho, "que el disco atienda")

    def esperar_sintoma(self):
        """Waits until an operation met the rule."""
        esperar(lambda: "alcanzado" in self._dicho, "que el disco falle")


class DiscoChico:
    """Context manager: a disk of so many bytes over the folder `punto`, which should be empty."""

    def __init__(self, punto, capacidad):
        self.punto = punto
        self.capacidad = capacidad

    def __enter__(self):
        subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={self.capacidad},mode=755", "ovanta", self.punto],
                       check=True)
        return self

    def __exit__(self, *_):
        desmontar(self.punto)

    @property
    def _relleno(self):
        return os.path.join(self.punto, ".relleno")

    def llenar(self):
        """Leaves no room for a single byte."""
        with open(self._relleno, "wb", buffering=0) as relleno:
            try:
                while relleno.write(bytes(4096)):
                    pass
            except OSError:
                pass

    def vaciar(self):
        os.remove(self._relleno)
