"""The window as the X server knows it, and what a window manager would tell it."""

from contextlib import contextmanager

from Xlib import X
from Xlib.display import Display
from Xlib.error import BadDrawable, BadWindow
from Xlib.protocol import event

from esperar import esperar


def se_ve(ventana, titulo):
    try:
        return (ventana.get_attributes().map_state == X.IsViewable and ventana.get_geometry().width > 1
                and ventana.get_wm_name() == titulo)
    except (BadDrawable, BadWindow):
        return False  # closed since it was listed


def abiertas(escritorio, titulo="Ovanta"):
    """The mapped windows with this title, bottom to top."""
    pantalla = Display(escritorio.display)
    try:
        return [v.id for v in pantalla.screen().root.query_tree().children if se_ve(v, titulo)]
    finally:
        pantalla.close()


def esperar_abierta(escritorio):
    return esperar(lambda: abiertas(escritorio), "la ventana en la pantalla")[0]


def esperar_ninguna(escritorio):
    esperar(lambda: not abiertas(escritorio), "que se cierre la ventana")


def pedir_cierre(escritorio, numero):
    """Presses the window's close button."""
    pantalla = Display(escritorio.display)
    ventana = pantalla.create_resource_object("window", numero)
    atomo = pantalla.intern_atom
    mensaje = event.ClientMessage(window=ventana, client_type=atomo("WM_PROTOCOLS"),
                                  data=(32, [atomo("WM_DELETE_WINDOW"), X.CurrentTime, 0, 0, 0]))
    ventana.send_event(mensaje)
    pantalla.sync()
    pantalla.close()


@contextmanager
def compositor(escritorio):
    """A compositing manager is there, as far as programs can tell."""
    pantalla = Display(escritorio.display)
    try:
        ventana = pantalla.screen().root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        ventana.set_selection_owner(pantalla.intern_atom("_NET_WM_CM_S0"), X.CurrentTime)
        pantalla.sync()
        yield
    finally:
        pantalla.close()


def geometria(escritorio, numero):
    """Where a window stands and how large it is: x, y, width, height."""
    pantalla = Display(escritorio.display)
    try:
        caja = pantalla.create_resource_object("window", numero).get_geometry()
        return caja.x, caja.y, caja.width, caja.height
    finally:
        pantalla.close()
