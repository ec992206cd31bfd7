#!/usr/bin/python3
"""A disk that shows a folder and falls ill on demand: servidor_disco.py FOLDER MOUNTPOINT.

Each line of its input is one rule as JSON, which takes the place of the one before; an empty line is no
rule. A rule holds up (or with "error" fails) every operation `operacion` on paths that contain `ruta`,
from the byte `desde` on, asked by a program called `programa`. "regla" is printed when a rule holds, and
"alcanzado" each time an operation meets it. What is held up goes on when the next rule comes.
"""

import errno
import json
import os
import sys
import threading

from fusepy import FUSE, FuseOSError, Operations, fuse_get_context


def programa_que_pregunta():
    try:
        with open(f"/proc/{fuse_get_context()[2]}/comm") as archivo:
            return archivo.read().strip()
    except OSError:
        return ""


class Disco(Operations):
    def __init__(self, carpeta):
        self.carpeta = carpeta
        self.regla = {}
        self.cambio = threading.Condition()

    def fijar(self, regla):
        with self.cambio:
            self.regla = regla
            self.cambio.notify_all()
        print("regla", flush=True)

    def _sufrir(self, operacion, ruta, hasta=None):
        """What the rule has in store for an operation that reaches up to the byte `hasta`; gives the first
        byte that it spoils."""
        regla = self.regla
        if operacion not in regla.get("operacion", ()) or regla.get("ruta", "") not in ruta:
            return None
        if regla.get("programa", "") not in programa_que_pregunta():
            return None
        desde = regla.get("desde", 0)
        if hasta is not None and hasta <= desde:
            return None
        print("alcanzado", flush=True)
        if "error" in regla:
            return desde
        with self.cambio:
            self.cambio.wait_for(lambda: self.regla is not regla)
        return None

    def _real(self, operacion, ruta):
        if self._sufrir(operacion, ruta) is not None:
            raise FuseOSError(errno.EIO)
        return self.carpeta + ruta

    def getattr(self, path, fh=None):
        estado = os.lstat(self._real("getattr", path))
        return {clave: getattr(estado, clave) for clave in dir(estado) if clave in (
            "st_mode", "st_ino", "st_nlink", "st_uid", "st_gid", "st_size", "st_mtime", "st_atime", "st_ctime",
            "st_blocks")}

    def readdir(self, path, fh):
        with os.scandir(self._real("readdir", path)) as entradas:
            nombres = [(e.name, {"st_mode": e.stat(follow_symlinks=False).st_mode, "st_ino": e.inode()}, 0)
                       for e in entradas]
        return [(".", None, 0), ("..", None, 0)] + nombres

    def open(self, path, flags):
        return os.open(self._real("open", path), os.O_RDONLY)

    def read(self, path, size, offset, fh):
        desde = self._sufrir("read", path, offset + size)
        if desde is not None and offset >= desde:
            raise FuseOSError(errno.EIO)
        return os.pread(fh, size if desde is None else desde - offset, offset)

    def release(self, path, fh):
        os.close(fh)

    def statfs(self, path):
        estado = os.statvfs(self.carpeta)
        return {clave: getattr(estado, clave) for clave in ("f_bavail", "f_bfree", "f_blocks", "f_bsize", "f_frsize")}


def main():
    disco = Disco(sys.argv[1])

    def escuchar():
        for linea in sys.stdin:
            disco.fijar(json.loads(linea) if linea.strip() else {})
        disco.fijar({})

    threading.Thread(target=escuchar, daemon=True).start()
    FUSE(disco, sys.argv[2], foreground=True, direct_io=True, use_ino=True, attr_timeout=0, entry_timeout=0)


if __name__ == "__main__":
    main()
