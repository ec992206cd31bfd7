#!/usr/bin/env python3
"""Measures Ovanta against its peers, on a private virtual desktop, and prints a line per figure:
name, ours, reference, ratio.

Usage: medir.py BIN_FOLDER [--segundos N] [--solo NAME,...]
"""
import argparse
import datetime
import fcntl
import json
import os
import plistlib
import pty
import shutil
import signal
import statistics
import struct
import subprocess
import sys
import tempfile
import termios
import threading
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "tests" / "e2e"))
from escritorio import Escritorio  # noqa: E402
from Xlib import X, display  # noqa: E402

ARRANQUES = 7
PUNTOS = [(500, 350), (60, 40), (60, 640), (900, 660), (300, 90)]


def linea(nombre, nuestro, referencia, unidad):
    razon = f"{nuestro / referencia:8.2f}" if referencia else "       -"
    print(f"{nombre:44} {nuestro:12.3f} {referencia:12.3f} {razon}  {unidad}", flush=True)


def hogar_vacio():
    return tempfile.TemporaryDirectory(prefix="ovanta-medir.")


class Programa:
    """A program on the desktop that ends with the block. With `de_la_sesion` its parent bears the
    name of a session manager, as at login."""

    def __init__(self, escritorio, orden, de_la_sesion=False):
        self.hogar = hogar_vacio()
        if de_la_sesion:
            gestor = os.path.join(self.hogar.name, "xfce4-session")
            os.symlink("/bin/sh", gestor)
            orden = [gestor, "-c", '"$0"; :', *orden]
        self.inicio = time.monotonic()
        self.proceso = subprocess.Popen(orden, env=escritorio.entorno(self.hogar.name), start_new_session=True,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.pid = self.proceso.pid
        if de_la_sesion:
            hijos = Path(f"/proc/{self.pid}/task/{self.pid}/children")
            while not hijos.read_text().split():
                time.sleep(0.01)
            self.pid = int(hijos.read_text().split()[0])

    def __enter__(self):
        return self

    def __exit__(self, *_):
        os.kill(self.pid, signal.SIGTERM)
        self.proceso.wait(20)
        self.hogar.cleanup()


def pintado(raiz):
    for x, y in PUNTOS:
        dato = raiz.get_image(x, y, 1, 1, X.ZPixmap, 0xFFFFFFFF).data
        if any(dato[:3]):
            return True
    return False


def hasta_primer_cuadro(escritorio, orden):
    """Milliseconds from the start of the process to the first pixel of its window."""
    raiz = display.Display(escritorio.display).screen().root
    if pintado(raiz):
        raise RuntimeError("la pantalla no está vacía")
    with Programa(escritorio, orden) as programa:
        while not pintado(raiz):
            if time.monotonic() - programa.inicio > 30:
                raise RuntimeError(f"{orden[0]} no pintó nada")
            time.sleep(0.001)
        tardo = (time.monotonic() - programa.inicio) * 1000
    while pintado(raiz):
        time.sleep(0.01)
    return tardo


def medir_arranque(escritorio, binarios):
    tiempos = {"OvantaBar": [], "referencia_ventana": []}
    for _ in range(ARRANQUES):
        for nombre, lista in tiempos.items():
            lista.append(hasta_primer_cuadro(escritorio, [str(binarios / nombre)]))
    linea("arranque hasta el primer cuadro", *(statistics.median(lista) for lista in tiempos.values()), "ms")


def leer_reposo(pid):
    """Private bytes, processor seconds and voluntary switches so far."""
    tareas = list(Path(f"/proc/{pid}/task").iterdir())
    cambios = ns = 0
    for tarea in tareas:
        for renglon in (tarea / "status").read_text().splitlines():
            if renglon.startswith("voluntary_ctxt_switches"):
                cambios += int(renglon.split()[1])
        ns += int((tarea / "schedstat").read_text().split()[0])
    privado = sum(int(renglon.split()[1]) for renglon in Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()
                  if renglon.startswith("Private_Dirty"))
    return privado / 1024, ns / 1e9, cambios


def medir_reposo(escritorio, binarios, segundos):
    """Both rest side by side; ours as the session starts it: the icon alone."""
    with Programa(escritorio, [str(binarios / "OvantaBar")], de_la_sesion=True) as nuestro, \
            Programa(escritorio, [str(binarios / "referencia_bandeja")]) as referencia:
        time.sleep(8)
        antes = [leer_reposo(p.pid) for p in (nuestro, referencia)]
        time.sleep(segundos)
        despues = [leer_reposo(p.pid) for p in (nuestro, referencia)]
    linea("bandeja: memoria privada", despues[0][0], despues[1][0], "MiB")
    linea("bandeja: procesador", *(100 * (d[1] - a[1]) / segundos for a, d in zip(antes, despues)), "% de un núcleo")
    linea("bandeja: despertares", *((d[2] - a[2]) / segundos for a, d in zip(antes, despues)), "por segundo")


def banco(binarios, *verbo):
    salida = subprocess.run([str(binarios / "ovanta-banco"), *verbo], check=True, capture_output=True, text=True)
    return json.loads(salida.stdout)


def medir_ejecutar(_, binarios):
    datos = banco(binarios, "ejecutar")
    linea("ejecutar frente a posix_spawn", datos["ejecutar_us"], datos["posix_spawn_us"], "µs")


def medir_seguridad(_, binarios):
    datos = banco(binarios, "validar")
    for clave, nombre in (("validar_existente", "validar una ruta que existe, frente a realpath"),
                          ("validar_inexistente", "validar una ruta que no existe"),
                          ("analisis", "proteger del análisis")):
        linea(nombre, datos[clave + "_us"], datos[clave + "_realpath_us"], "µs")


def medir_papelera(_, binarios):
    datos = banco(binarios, "papelera")
    linea("mover a la Papelera frente a gio trash", datos["papelera_us"], datos["gio_us"], "µs")
    linea("mover a la Papelera frente a trash-put", datos["papelera_us"], datos["trash_put_us"], "µs")


class Durmientes:
    """Idle processes, that end with the block."""

    def __init__(self, cuantos):
        self.cuantos = cuantos

    def __enter__(self):
        self.procesos = [subprocess.Popen(["sleep", "600"]) for _ in range(self.cuantos)]

    def __exit__(self, *_):
        for proceso in self.procesos:
            proceso.kill()
        for proceso in self.procesos:
            proceso.wait()


def procesador_de(pid):
    """Processor seconds so far, of all its threads."""
    return sum(int((tarea / "schedstat").read_text().split()[0])
               for tarea in Path(f"/proc/{pid}/task").iterdir()) / 1e9


def frente_a_monitor(binarios, orden, periodo, refrescos=10):
    """Processor microseconds of a sweep for one process, and of a refresh of a monitor in a terminal of
    its own: both at that period, side by side."""
    hogar = hogar_vacio()
    pid, terminal = pty.fork()
    if pid == 0:
        entorno = {"PATH": os.environ["PATH"], "HOME": hogar.name, "TERM": "xterm-256color", "LANG": "C.UTF-8"}
        os.execvpe(orden[0], orden, entorno)
    fcntl.ioctl(terminal, termios.TIOCSWINSZ, struct.pack("HHHH", 50, 160, 0, 0))
    lector = threading.Thread(target=vaciar, args=(terminal,), daemon=True)
    lector.start()
    time.sleep(2 + 2 * periodo)
    antes, desde = procesador_de(pid), time.monotonic()
    datos = banco(binarios, "proc", str(refrescos), str(1000 * periodo))
    veces = (time.monotonic() - desde) / periodo
    gastado = (procesador_de(pid) - antes) * 1e6
    os.kill(pid, signal.SIGKILL)
    os.waitpid(pid, 0)
    lector.join(5)
    os.close(terminal)
    hogar.cleanup()
    return datos["cpu_us_per_process"], gastado / veces / datos["processes"]


def vaciar(terminal):
    try:
        while os.read(terminal, 65536):
            pass
    except OSError:
        pass  # the program at the other end is gone


MONITORES = {
    "top": (["top", "-b", "-d", "1"], 1),
    "htop": (["htop", "-d", "10"], 1),
    "btop": (["btop", "--utf-force"], 2),
}


def medir_procesos(_, binarios):
    """Processor time, as that is what a monitor costs the others; the peers draw what they read."""
    with Durmientes(400):
        referencia = json.loads(subprocess.run([str(binarios / "referencia_proc"), "200"], check=True,
                                               capture_output=True, text=True).stdout)
        linea("barrer un proceso, frente a leer stat y statm",
              banco(binarios, "proc", "200")["cpu_us_per_process"], referencia["cpu_us_per_process"], "µs")
        for nombre, (orden, periodo) in MONITORES.items():
            titulo = "barrer un proceso, frente a " + nombre
            if shutil.which(orden[0]) is None:
                print(f"{titulo:44} no está instalado")
                continue
            linea(titulo, *frente_a_monitor(binarios, orden, periodo), "µs")


def arbol_plist(entradas):
    """What a device tells about its battery, many times over."""
    entrada = {"Serial": "F8Y7431000FKX", "CycleCount": 127, "Voltage": 4123, "IsCharging": False, "Temperature": 2980.5,
               "BatteryData": {"Cells": [4123, 4124], "Raw": bytes(range(64)), "Flags": "«no» & <sí>"},
               "Updated": datetime.datetime(2026, 11, 21, 5, 18, 36)}
    return {f"Battery{i}": {**entrada, "Capacity": 3000 + i, "Name": f"iPhone de Ana {i}"} for i in range(entradas)}


def medir_plist(_, binarios):
    referencia = binarios / "referencia_plist"
    for formato in (plistlib.FMT_XML, plistlib.FMT_BINARY):
        with tempfile.NamedTemporaryFile() as archivo:
            plistlib.dump(arbol_plist(5000), archivo, fmt=formato)
            archivo.flush()
            nuestro = banco(binarios, "plist", archivo.name)["mb_s"]
            titulo = "leer una lista de propiedades, " + formato.name
            if not referencia.exists():
                print(f"{titulo:44} {nuestro:12.3f}  MB/s (libplist no está instalado)")
                continue
            salida = subprocess.run([str(referencia), archivo.name], check=True, capture_output=True, text=True)
            linea(titulo, nuestro, json.loads(salida.stdout)["mb_s"], "MB/s")


def main():
    argumentos = argparse.ArgumentParser()
    argumentos.add_argument("binarios", type=Path)
    argumentos.add_argument("--segundos", type=int, default=60)
    argumentos.add_argument("--solo", default="")
    opciones = argumentos.parse_args()
    binarios = opciones.binarios.resolve()
    medidas = {
        "arranque": lambda e: medir_arranque(e, binarios),
        "reposo": lambda e: medir_reposo(e, binarios, opciones.segundos),
        "ejecutar": lambda e: medir_ejecutar(e, binarios),
        "seguridad": lambda e: medir_seguridad(e, binarios),
        "papelera": lambda e: medir_papelera(e, binarios),
        "procesos": lambda e: medir_procesos(e, binarios),
        "plist": lambda e: medir_plist(e, binarios),
    }
    elegidas = [m for m in opciones.solo.split(",") if m] or list(medidas)
    print(f"{'':44} {'Ovanta':>12} {'referencia':>12} {'razón':>8}")
    with Escritorio() as escritorio:
        for nombre in elegidas:
            medidas[nombre](escritorio)


if __name__ == "__main__":
    main()
