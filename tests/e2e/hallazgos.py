"""The steps of a person on the screens of an analysis."""

from accesible import BOTON, CASILLA, DIALOGO, FILA
from esperar import esperar


class PantallaHallazgos:
    def __init__(self, ventana, seccion):
        self.ventana = ventana
        ventana.esperar(seccion, FILA).pulsar()
        ventana.esperar(contiene="Analizar ", papel=BOTON)

    def analizar(self):
        self.empezar()
        self.esperar_fin()

    def empezar(self):
        self.ventana.esperar(contiene="Analizar ", papel=BOTON).pulsar()

    def esperar_fin(self, limite=None):
        """Waits until no analysis and no move runs: nothing is left to stop."""
        esperar(lambda: not self.ventana.buscar("Detener", BOTON) and not self.ventana.buscar("Deteniendo", BOTON),
                "que termine el análisis", limite)

    def marcar(self, *nombres):
        for nombre in nombres:
            self.ventana.esperar(nombre, CASILLA).alternar()

    def casilla(self, nombre):
        return self.ventana.esperar(nombre, CASILLA)

    def pedir_mover(self, titulo):
        """Asks for the move and returns the question."""
        self.ventana.esperar("Mover a la Papelera", BOTON).pulsar()
        return self.ventana.esperar(titulo, DIALOGO)

    def mover(self, titulo, contiene, limite=None):
        """Moves what is marked and returns the line of the result. Whatever the question, without a title."""
        self.pedir_mover(titulo).esperar(contiene=contiene, papel=BOTON).pulsar()
        resultado = self.ventana.esperar(contiene="Movid", papel="label").nombre
        self.esperar_fin(limite)
        return resultado
