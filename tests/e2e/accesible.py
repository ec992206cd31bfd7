"""Reading and driving a program through the accessibility bus, by role and visible Spanish name."""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

from esperar import NoOcurrio, esperar  # noqa: E402

BOTON = "push button"
CASILLA = "check box"
DIALOGO = "dialog"
FILA = "list item"
TEXTO = "label"


class Elemento:
    """Something on a screen. It may go away at any time: then its properties read as empty."""

    def __init__(self, atspi):
        self._atspi = atspi

    def _leer(self, accion, si_no_hay):
        try:
            return accion()
        except GLib.Error:
            return si_no_hay

    @property
    def nombre(self):
        return self._leer(self._atspi.get_name, "") or ""

    @property
    def papel(self):
        return self._leer(self._atspi.get_role_name, "") or ""

    @property
    def descripcion(self):
        return self._leer(self._atspi.get_description, "") or ""

    @property
    def valor(self):
        """The number that a bar, slider or field shows."""
        return self._leer(self._atspi.get_current_value, None)

    def fijar_valor(self, valor):
        self._atspi.set_current_value(valor)

    def _estado(self, estado):
        return self._leer(lambda: self._atspi.get_state_set().contains(estado), False)

    @property
    def visible(self):
        return self._estado(Atspi.StateType.SHOWING) and self._estado(Atspi.StateType.VISIBLE)

    @property
    def marcado(self):
        return self._estado(Atspi.StateType.CHECKED)

    @property
    def seleccionado(self):
        return self._estado(Atspi.StateType.SELECTED)

    @property
    def enfocado(self):
        return self._estado(Atspi.StateType.FOCUSED)

    def hijos(self):
        cuantos = self._leer(self._atspi.get_child_count, 0)
        hallados = (self._leer(lambda i=i: self._atspi.get_child_at_index(i), None) for i in range(cuantos))
        return [Elemento(hijo) for hijo in hallados if hijo is not None]

    def todos(self):
        """This element and everything below it, from the top to the bottom."""
        yield self
        for hijo in self.hijos():
            yield from hijo.todos()

    def buscar(self, nombre=None, papel=None, contiene=None, visible=True):
        """Everything below with this name (or a name that contains a text) and role."""
        return [e for e in self.todos()
                if (nombre is None or e.nombre == nombre) and (contiene is None or contiene in e.nombre)
                and (papel is None or e.papel == papel) and (not visible or e.visible)]

    def esperar(self, nombre=None, papel=None, **criterios):
        """The first such element, as soon as there is one."""
        que = f"{papel or 'elemento'} «{nombre or criterios.get('contiene')}»"
        try:
            return esperar(lambda: self.buscar(nombre, papel, **criterios), que)[0]
        except NoOcurrio as error:
            raise NoOcurrio(f"{error}\nLo que había:\n{self.arbol()}") from None

    def esperar_que_no_haya(self, nombre=None, papel=None, **criterios):
        esperar(lambda: not self.buscar(nombre, papel, **criterios), f"que desaparezca «{nombre}»")

    def acciones(self):
        cuantas = self._leer(self._atspi.get_n_actions, 0)
        return [self._atspi.get_action_name(i) for i in range(cuantas)]

    def hacer(self, *preferidas):
        """Does the first of these actions that the element has."""
        acciones = self.acciones()
        for nombre in preferidas:
            if nombre in acciones:
                self._atspi.do_action(acciones.index(nombre))
                return
        raise AssertionError(f"{self!r} no tiene ninguna de {preferidas}: {acciones}")

    def pulsar(self):
        """Qt 6.4 tells nobody which of its controls are disabled: pressing such a one does nothing."""
        self.hacer("Press", "Toggle")

    def alternar(self):
        """Flips a switch and waits until it shows so."""
        antes = self.marcado
        self.hacer("Toggle", "Press")
        esperar(lambda: self.marcado != antes, f"que cambie {self!r}")

    def textos(self):
        """Every visible name, in order: what a person would read."""
        return [e.nombre for e in self.todos() if e.nombre and e.visible]

    def arbol(self, sangria=0):
        """All that can be found here, one line each, a dot before what is not visible."""
        linea = f"{'  ' * sangria}{'' if self.visible else '·'}{self.papel} «{self.nombre}»{' ✓' if self.marcado else ''}"
        return "\n".join([linea] + [hijo.arbol(sangria + 1) for hijo in self.hijos()])

    def __repr__(self):
        return f"{self.papel} «{self.nombre}»"


def aplicacion(pid):
    """The program with this process number, or None while it is not on the bus."""
    escritorio = Atspi.get_desktop(0)
    # Ask anew every time: the library's own copies are refreshed by signals that may be late.
    escritorio.set_cache_mask(Atspi.Cache.NONE)
    escritorio.clear_cache()
    for elemento in Elemento(escritorio).hijos():
        if elemento._leer(elemento._atspi.get_process_id, 0) == pid:
            return elemento
    return None
