"""The steps of a person on the screen "Cachés"."""

from accesible import BOTON, CASILLA, DIALOGO, FILA


class PantallaCaches:
    def __init__(self, ventana):
        self.ventana = ventana
        ventana.esperar("Cachés", FILA).pulsar()
        ventana.esperar("Marcar los seguros", BOTON)

    def esperar_medida(self):
        """Waits until the sizes are there: something is safe to clean, and nothing is being measured."""
        self.ventana.esperar(contiene=" seguros", papel="label")
        self.ventana.esperar_que_no_haya("0 GB seguros")
        self.ventana.esperar_que_no_haya("Midiendo")

    def marcar_seguros(self, cuantos):
        self.ventana.esperar("Marcar los seguros", BOTON).pulsar()
        palabra = "seleccionado" if cuantos == 1 else "seleccionados"
        self.ventana.esperar(contiene=f"{cuantos} {palabra} ")

    def interruptor(self, nombre):
        return self.ventana.esperar(nombre, CASILLA)

    def simular(self):
        """Opens the dry run and returns its sheet."""
        self.ventana.esperar("Simular", BOTON).pulsar()
        return self.ventana.esperar("Simulación", DIALOGO)

    def cerrar_simulacion(self):
        self.ventana.esperar("Simulación", DIALOGO).esperar("Cerrar", BOTON).pulsar()
        self.ventana.esperar_que_no_haya("Simulación", DIALOGO)

    def pedir_mover(self, cuantos):
        """Asks for the move and returns the question."""
        self.ventana.esperar("Mover a la Papelera", BOTON).pulsar()
        return self.ventana.esperar(contiene=f"Mover {cuantos} objetivos", papel=DIALOGO)

    def mover(self, cuantos):
        """Moves what is ticked and returns the text of the result."""
        self.pedir_mover(cuantos).esperar("Mover a la Papelera", BOTON).pulsar()
        return self.ventana.esperar(contiene="Movidos ").nombre
