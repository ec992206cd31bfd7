#!/usr/bin/env python3
"""Makes a home folder to search: log-normal sizes, every kind of duplicate and near-duplicate.

    generar_hogar.py FOLDER [--archivos N] [--semilla S] [--mediana BYTES]

The same arguments give the same tree.
"""
import argparse
import math
import os
import random

CABEZA = 65536


class Generador:
    def __init__(self, carpeta, archivos, semilla, mediana):
        self.azar = random.Random(semilla)
        self.carpeta = carpeta
        self.quedan = archivos
        self.mediana = mediana
        self.carpetas = [carpeta]
        self.escritos = 0

    def una_carpeta(self):
        """Now and then a new folder, below any of the others."""
        if len(self.carpetas) == 1 or self.azar.random() < 0.06:
            madre = self.azar.choice(self.carpetas[-400:])
            nueva = os.path.join(madre, f"{self.azar.choice(['fotos', 'viaje', 'notas', 'copia'])} {len(self.carpetas)}")
            os.makedirs(nueva)
            self.carpetas.append(nueva)
        return self.azar.choice(self.carpetas)

    def tamano(self):
        return max(1, min(int(self.azar.lognormvariate(math.log(self.mediana), 2.2)), 200 << 20))

    def escribir(self, contenido):
        if self.quedan <= 0:
            return None
        self.quedan -= 1
        self.escritos += 1
        extension = self.azar.choice(["jpg", "txt", "pdf", "zip", "mp4", "png"])
        ruta = os.path.join(self.una_carpeta(), f"archivo {self.escritos}.{extension}")
        with open(ruta, "wb") as archivo:
            archivo.write(contenido)
        momento = 1_500_000_000 + self.azar.randrange(200_000_000)
        os.utime(ruta, (momento, momento))
        return ruta

    def bytes_nuevos(self, cuantos):
        return self.azar.randbytes(cuantos)

    def unico(self):
        self.escribir(self.bytes_nuevos(self.tamano()))

    def copias(self):
        contenido = self.bytes_nuevos(self.tamano())
        for _ in range(self.azar.choice([2, 2, 2, 3, 4, 8])):
            self.escribir(contenido)

    def mismo_tamano(self):
        """Equal sizes and nothing else in common."""
        bytes_ = self.azar.choice([4096, 1 << 14, 100_000])
        for _ in range(self.azar.randrange(2, 6)):
            self.escribir(self.bytes_nuevos(bytes_))

    def casi_iguales(self):
        """One byte differs: at the start, behind the head, or at the very end."""
        contenido = bytearray(self.bytes_nuevos(max(self.tamano(), CABEZA + 4096)))
        self.escribir(bytes(contenido))
        lugar = self.azar.choice([0, 900, 2000, CABEZA - 1, CABEZA, len(contenido) - 1])
        contenido[lugar] ^= 0xFF
        self.escribir(bytes(contenido))

    def enlaces(self):
        ruta = self.escribir(self.bytes_nuevos(self.tamano()))
        if ruta and self.quedan > 0:
            self.quedan -= 1
            os.link(ruta, ruta + ".enlace")

    def llenar(self):
        clases = [self.unico] * 62 + [self.copias] * 14 + [self.mismo_tamano] * 12 + [self.casi_iguales] * 6
        clases += [self.enlaces] * 4 + [lambda: self.escribir(b"")] * 2
        while self.quedan > 0:
            self.azar.choice(clases)()


def main():
    argumentos = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    argumentos.add_argument("carpeta")
    argumentos.add_argument("--archivos", type=int, default=200_000)
    argumentos.add_argument("--semilla", type=int, default=1)
    argumentos.add_argument("--mediana", type=int, default=5000, help="median size in bytes")
    pedido = argumentos.parse_args()
    os.makedirs(pedido.carpeta, exist_ok=False)
    Generador(pedido.carpeta, pedido.archivos, pedido.semilla, pedido.mediana).llenar()


if __name__ == "__main__":
    main()
