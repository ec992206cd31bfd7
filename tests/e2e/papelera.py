"""The Trash as another program reads it: trash-cli."""

import os
import subprocess


def _correr(orden, casa, **otros):
    entorno = {**os.environ, "HOME": casa, "TRASH_VOLUMES": casa}
    entorno.pop("XDG_DATA_HOME", None)
    hecho = subprocess.run(orden, env=entorno, capture_output=True, text=True, timeout=60, **otros)
    assert hecho.returncode == 0, f"{orden} dio {hecho.returncode}:\n{hecho.stdout}{hecho.stderr}"
    return hecho


def listar(casa):
    """The paths where the items of the Trash lay, sorted."""
    # One line an item: day, time of day, path.
    return sorted(linea.split(" ", 2)[2] for linea in _correr(["trash-list"], casa).stdout.splitlines())


def restaurar_todo(casa):
    for _ in listar(casa):
        _correr(["trash-restore", casa], casa, cwd=casa, input="0\n")
