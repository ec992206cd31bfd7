"""Starting programs of the virtual desktop and ending them with all their children."""

import os
import signal
import subprocess
import time


def iniciar(orden, registro, entorno=None, **otros):
    """Starts `orden` in a process group of its own; what it prints to standard error goes to the
    file `registro`."""
    with open(registro, "ab") as salida:
        return subprocess.Popen(orden, env=entorno, stderr=salida, start_new_session=True, **otros)


def vivos_del_grupo(grupo):
    """The numbers of the processes in a group that are not zombies."""
    vivos = []
    for numero in filter(str.isdigit, os.listdir("/proc")):
        try:
            with open(f"/proc/{numero}/stat", "rb") as archivo:
                campos = archivo.read().rsplit(b")", 1)[1].split()
        except OSError:
            continue
        if int(campos[2]) == grupo and campos[0] != b"Z":
            vivos.append(int(numero))
    return vivos


def terminar(proceso, gracia=5.0):
    """Ends the group of `proceso`: asks first, then kills."""
    for senal in (signal.SIGTERM, signal.SIGKILL):
        try:
            os.killpg(proceso.pid, senal)
        except ProcessLookupError:
            break
        fin = time.monotonic() + gracia
        while time.monotonic() < fin and (proceso.poll() is None or vivos_del_grupo(proceso.pid)):
            time.sleep(0.02)
    proceso.wait()
    if proceso.stdout:
        proceso.stdout.close()


def hay_espacios_de_montaje():
    """Whether a program can be given other files under the same paths."""
    return subprocess.run(["unshare", "--mount", "true"], capture_output=True).returncode == 0
