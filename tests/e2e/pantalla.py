"""Pictures of the virtual display."""

import subprocess

from esperar import esperar

COLORES_MINIMOS = 16  # a screen with any text on it has more


def colores(png):
    return int(subprocess.run(["identify", "-format", "%k", png], check=True, capture_output=True,
                              text=True).stdout)


def capturar(escritorio, png):
    """Takes a picture of the whole display."""
    subprocess.run(["import", "-display", escritorio.display, "-window", "root", png], check=True)


def capturar_quieta(escritorio, png):
    """Takes a picture once the display shows something and stands still."""
    anterior = None

    def quieta():
        nonlocal anterior
        capturar(escritorio, png)
        with open(png, "rb") as archivo:
            ahora = archivo.read()
        igual, anterior = ahora == anterior, ahora
        return igual and colores(png) >= COLORES_MINIMOS

    esperar(quieta, f"una pantalla quieta y con algo dibujado para {png}")
