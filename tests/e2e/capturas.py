#!/usr/bin/python3
"""Takes a picture of every screen of a program and of its panel, light and dark, on a virtual desktop.

    capturas.py PROGRAM LABEL FOLDER [--hogar HOME]

The pictures lie in FOLDER/LABEL/<claro|oscuro>/<section>.png, the panel over the last screen in
panel.png. Without --hogar the program gets an empty home of its own.
"""

import argparse
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from accesible import FILA  # noqa: E402
from escritorio import Escritorio  # noqa: E402
from pantalla import capturar_quieta  # noqa: E402
from programa import Casa, Programa  # noqa: E402

# Name of the picture and entry of the sidebar, in the sidebar's order.
SECCIONES = {
    "resumen": "Resumen",
    "espacio": "Cachés",
    "desarrollo": "Desarrollo",
    "duplicados": "Duplicados",
    "pesados": "Lo más pesado",
    "oculto": "Espacio oculto",
    "memoria": "Memoria",
    "salud": "Salud",
    "automatizacion": "Automatización",
    "simuladores": "Simuladores",
    "herramientas": "Herramientas",
    "historial": "Historial",
    "ajustes": "Ajustes",
}


def capturar_todas(escritorio, programa, carpeta):
    os.makedirs(carpeta, exist_ok=True)
    with programa:
        ventana = programa.ventana()
        for clave, titulo in SECCIONES.items():
            ventana.esperar(titulo, FILA).pulsar()
            capturar_quieta(escritorio, os.path.join(carpeta, clave + ".png"))
        programa.icono().pulsar()
        programa.panel()
        capturar_quieta(escritorio, os.path.join(carpeta, "panel.png"))
        programa.salir()
    return programa.quejas()


def main():
    opciones = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    opciones.add_argument("programa")
    opciones.add_argument("etiqueta")
    opciones.add_argument("carpeta")
    opciones.add_argument("--hogar")
    args = opciones.parse_args()
    quejas = []
    with Escritorio() as escritorio, Casa() as casa:
        for aspecto in ("claro", "oscuro"):
            oscuro = aspecto == "oscuro"
            escritorio.portal.oscuro(oscuro)
            # The simulated Mac has a look of its own that it takes from its arguments.
            argumentos = ["--oscuro"] if oscuro else []
            programa = Programa(escritorio, args.programa, args.hogar or casa.ruta, argumentos)
            quejas += capturar_todas(escritorio, programa, os.path.join(args.carpeta, args.etiqueta, aspecto))
    print("\n".join(quejas), file=sys.stderr, end="\n" if quejas else "")
    return 1 if quejas else 0


if __name__ == "__main__":
    sys.exit(main())
