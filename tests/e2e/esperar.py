"""Waiting for what another program will do soon."""

import time

from gi.repository import GLib

LIMITE = 30.0  # generous: only a program that hangs gets there


class NoOcurrio(AssertionError):
    """What was waited for did not come about in time."""


def esperar(condicion, que, limite=None):
    """Polls until `condicion()` gives something true and returns that; `que` names it in the failure."""
    limite = limite or LIMITE
    fin = time.monotonic() + limite
    contexto = GLib.MainContext.default()
    while True:
        while contexto.iteration(False):  # the accessibility library hears of changes here
            pass
        valor = condicion()
        if valor:
            return valor
        if time.monotonic() > fin:
            raise NoOcurrio(f"no ocurrió en {limite:g} s: {que}")
        time.sleep(0.03)
