"""A copy of the program with a catalogue of the test's own."""

import json
import os
import shutil

from prueba import PROGRAMAS


def regla(clave, ruta, **otros):
    return {"id": clave, "name": clave.capitalize(), "path": ruta, "category": "cache", "risk": "safe",
            "mode": "contents", "why": "Se vuelve a crear.", "cost": "Nada.", **otros}


def instalar(carpeta, catalogo):
    """Lays out a program in `carpeta` as an installation has it and returns its executable.
    `catalogo` is a list of rules, bytes to be taken as they are, or None for no catalogue."""
    binario = os.path.join(carpeta, "bin", "OvantaBar")
    os.makedirs(os.path.dirname(binario))
    shutil.copy(os.path.join(PROGRAMAS, "OvantaBar"), binario)
    os.makedirs(os.path.join(carpeta, "lib"))
    shutil.copy(os.path.join(PROGRAMAS, "../lib/libovanta_interfaz.so"), os.path.join(carpeta, "lib"))
    if catalogo is not None:
        datos = os.path.join(carpeta, "share/ovanta/linux")
        os.makedirs(datos)
        contenido = catalogo if isinstance(catalogo, bytes) else json.dumps(catalogo).encode()
        with open(os.path.join(datos, "rules.json"), "wb") as archivo:
            archivo.write(contenido)
    return binario
