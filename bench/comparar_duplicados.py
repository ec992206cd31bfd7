#!/usr/bin/env python3
"""Compares the search for equal files, and the walk alone, with other programs on one folder: every program
in turn, round after round, so that what else the machine does falls on all alike.

    comparar_duplicados.py BIN_FOLDER FOLDER [--rondas N] [--frias N] [--tiempo-real]

Prints two tables. `wall`, `CPU` (user and system) and `peak` are the least of the rounds; the ratio is the
median over the rounds of Ovanta's wall time by the other's. `read` is what came from the disk. A peak below that
of this script cannot be told. Programs that are not installed are left out. Cold rounds empty the page cache, which only root may do.
"""
import argparse
import os
import resource
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
from dataclasses import dataclass
from pathlib import Path

NUESTRO = "Ovanta"
VACIAR = Path("/proc/sys/vm/drop_caches")


@dataclass
class Medida:
    pared: float
    procesador: float
    leidos: int  # bytes from the disk
    cumbre: int  # bytes of memory


def ordenes(bin_, carpeta, grupos):
    """Name to command, Ovanta first."""
    duplicados = {
        NUESTRO: [f"{bin_}/ovanta-banco", "dups", carpeta],
        "the limit": [f"{bin_}/referencia_limite", grupos],
        "jdupes": ["jdupes", "-r", "-q", carpeta],
        "jdupes -Q": ["jdupes", "-r", "-q", "-Q", carpeta],
        "rdfind -checksum sha256": ["rdfind", "-checksum", "sha256", "-dryrun", "true", "-makeresultsfile", "false",
                                    carpeta],
        "rmlint": ["rmlint", "-T", "df", "-o", "csv:/dev/null", carpeta],
        "fdupes": ["fdupes", "-r", "-q", "-n", carpeta],
    }
    recorrido = {
        NUESTRO: [f"{bin_}/ovanta-banco", "walk", carpeta],
        "bare getdents64 and statx": [f"{bin_}/referencia_recorrido", carpeta],
        "find -type f -size +0": ["find", carpeta, "-type", "f", "-size", "+0"],
        "fd -j1 --size": ["fdfind", "-j1", "-u", "--type", "f", "--size", "+1b", ".", carpeta],
    }
    return [{nombre: orden for nombre, orden in grupo.items() if shutil.which(orden[0])}
            for grupo in (duplicados, recorrido)]


def con_prioridad():
    os.sched_setscheduler(0, os.SCHED_RR, os.sched_param(10))


def medir(orden, tiempo_real, salida=subprocess.DEVNULL):
    antes = time.monotonic()
    proceso = subprocess.Popen(orden, stdin=subprocess.DEVNULL, stdout=salida, stderr=subprocess.DEVNULL,
                               preexec_fn=con_prioridad if tiempo_real else None)
    _, estado, uso = os.wait4(proceso.pid, 0)
    pared = time.monotonic() - antes
    proceso.returncode = os.waitstatus_to_exitcode(estado)
    if proceso.returncode != 0:
        sys.exit(f"{orden[0]} ended with {proceso.returncode}")
    return Medida(pared, uso.ru_utime + uso.ru_stime, uso.ru_inblock * 512, uso.ru_maxrss * 1024)


def rondas(ordenes_, cuantas, tiempo_real, frias):
    medidas = {nombre: [] for nombre in ordenes_}
    for ronda in range(cuantas):
        for nombre, orden in ordenes_.items():
            if frias:
                os.sync()
                VACIAR.write_text("3")
            print(f"\r{'cold' if frias else 'warm'} {ronda + 1}/{cuantas} {nombre:28}", end="", file=sys.stderr,
                  flush=True)
            medidas[nombre].append(medir(orden, tiempo_real))
    print(f"\r{'':60}\r", end="", file=sys.stderr, flush=True)
    return medidas


def imprimir(titulo, medidas):
    print(f"\n| {titulo} | wall | CPU | read | peak | Ovanta's wall by this | its peak by this |")
    print("|---|---|---|---|---|---|---|")
    nuestras = medidas[NUESTRO]
    propia = resource.getrusage(resource.RUSAGE_SELF).ru_maxrss * 1024  # a child inherits it
    for nombre, suyas in medidas.items():
        razon = statistics.median(a.pared / b.pared for a, b in zip(nuestras, suyas))
        cumbre = statistics.median(a.cumbre / b.cumbre for a, b in zip(nuestras, suyas))
        se_sabe = all(m.cumbre > propia for m in nuestras + suyas)
        menor = {campo: min(getattr(m, campo) for m in suyas) for campo in Medida.__annotations__}
        memoria = f"{menor['cumbre'] / 2**20:.0f} MiB" if menor["cumbre"] > propia else "-"
        print(f"| {nombre} | {menor['pared']:.2f} s | {menor['procesador']:.2f} s | {menor['leidos'] / 2**20:.0f} MiB "
              f"| {memoria} | {razon:.2f} | {f'{cumbre:.2f}' if se_sabe else '-'} |", flush=True)


def grupos_de_ovanta(fichero):
    return {frozenset(os.fsdecode(ruta) for ruta in grupo.split(b"\0"))
            for grupo in Path(fichero).read_bytes().split(b"\0\0") if grupo}


def grupos_de_jdupes(carpeta, tiempo_real):
    with tempfile.TemporaryFile() as salida:
        medir(["jdupes", "-r", "-q", "-H", carpeta], tiempo_real, salida)
        salida.seek(0)
        grupos = salida.read().strip(b"\n").split(b"\n\n")
    return {frozenset(os.fsdecode(ruta) for ruta in grupo.split(b"\n")) for grupo in grupos if grupo}


def comparar_grupos(bin_, carpeta, grupos, tiempo_real):
    """Also warms the caches up."""
    medir([f"{bin_}/ovanta-banco", "dups", carpeta, "--out", grupos], tiempo_real)
    if not shutil.which("jdupes"):
        return
    nuestros, suyos = grupos_de_ovanta(grupos), grupos_de_jdupes(carpeta, tiempo_real)
    print(f"groups: {len(nuestros)}, of jdupes {len(suyos)}, in only one of both {len(nuestros ^ suyos)}", flush=True)


def main():
    argumentos = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    argumentos.add_argument("bin")
    argumentos.add_argument("carpeta")
    argumentos.add_argument("--rondas", type=int, default=3)
    argumentos.add_argument("--frias", type=int, default=2, help="cold rounds; 0 where the cache cannot be emptied")
    argumentos.add_argument("--tiempo-real", action="store_true",
                            help="each program before all others of a machine that has more to do")
    pedido = argumentos.parse_args()
    carpeta = os.path.realpath(pedido.carpeta)
    frias = pedido.frias if os.access(VACIAR, os.W_OK) else 0
    with tempfile.NamedTemporaryFile(prefix="ovanta-grupos.") as grupos:
        comparar_grupos(pedido.bin, carpeta, grupos.name, pedido.tiempo_real)
        duplicados, recorrido = ordenes(pedido.bin, carpeta, grupos.name)
        imprimir("search, warm", rondas(duplicados, pedido.rondas, pedido.tiempo_real, False))
        imprimir("walk, warm", rondas(recorrido, 5 * pedido.rondas, pedido.tiempo_real, False))
        if frias:
            imprimir("search, cold", rondas(duplicados, frias, pedido.tiempo_real, True))
            imprimir("walk, cold", rondas(recorrido, frias, pedido.tiempo_real, True))


if __name__ == "__main__":
    main()
