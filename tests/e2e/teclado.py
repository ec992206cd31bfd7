"""The keyboard and the focus of the virtual display."""

from contextlib import contextmanager

from Xlib import X, XK
from Xlib.display import Display
from Xlib.ext import xtest


@contextmanager
def _pantalla(escritorio):
    pantalla = Display(escritorio.display)
    try:
        yield pantalla
        pantalla.sync()
    finally:
        pantalla.close()


def teclear(escritorio, nombre):
    """Presses a key by its X name, such as "Escape", in whatever has the focus."""
    with _pantalla(escritorio) as pantalla:
        codigo = pantalla.keysym_to_keycode(XK.string_to_keysym(nombre))
        for suceso in (X.KeyPress, X.KeyRelease):
            xtest.fake_input(pantalla, suceso, codigo)


def enfocada(escritorio):
    """The number of the window that has the focus."""
    with _pantalla(escritorio) as pantalla:
        foco = pantalla.get_input_focus().focus
        return getattr(foco, "id", foco)


def quitar_foco(escritorio):
    """Gives the focus to the desktop itself, as a click beside all windows does."""
    with _pantalla(escritorio) as pantalla:
        pantalla.screen().root.set_input_focus(X.RevertToNone, X.CurrentTime)
