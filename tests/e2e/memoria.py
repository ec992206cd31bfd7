"""The steps of a person on the screen "Memoria"."""

from accesible import BOTON, CASILLA, DIALOGO, FILA, TEXTO
from esperar import esperar

CERRAR = "¿Cerrar las aplicaciones seleccionadas?"
FORZAR = "¿Forzar la salida?"
REINICIAR = "¿Reiniciar el Mac?"


class PantallaMemoria:
    def __init__(self, ventana):
        self.ventana = ventana
        ventana.esperar("Memoria", FILA).pulsar()
        ventana.esperar("Actualizar", BOTON)

    def filas(self, nombre):
        """The rows of the applications with this name, also those one would have to scroll to."""
        return [fila for tabla in self.ventana.buscar("Lo que más memoria consume", "list", visible=False)
                for fila in tabla.buscar(nombre, FILA, visible=False)]

    def casillas(self, nombre):
        return [casilla for fila in self.filas(nombre) for casilla in fila.buscar(nombre, CASILLA, visible=False)]

    def casilla(self, nombre):
        """Waits for the row of an application, which comes with the next reading."""
        return esperar(lambda: self.casillas(nombre), f"la fila de {nombre}")[0]

    def marcar(self, nombre):
        self.casilla(nombre).hacer("Toggle", "Press")
        esperar(lambda: self.marcada(nombre), f"que se marque {nombre}")

    def marcada(self, nombre):
        return any(casilla.marcado for casilla in self.casillas(nombre))

    def actualizar_hasta_que_falte(self, nombre):
        def falta():
            self.ventana.esperar("Actualizar", BOTON).pulsar()
            return not self.filas(nombre)
        esperar(falta, f"que la lectura ya no tenga {nombre}")

    def pedir_cierre(self, cuantas):
        self.ventana.esperar(f"Cerrar {cuantas}", BOTON).pulsar()
        return self.pregunta(CERRAR)

    def pregunta(self, titulo):
        return self.ventana.esperar(titulo, DIALOGO)

    def responder(self, titulo, boton):
        self.pregunta(titulo).esperar(boton, BOTON).pulsar()
        self.ventana.esperar_que_no_haya(titulo, DIALOGO)

    def cerrar(self, *nombres):
        """Ticks these, and closes them politely."""
        for nombre in nombres:
            self.marcar(nombre)
        self.pedir_cierre(len(nombres))
        self.responder(CERRAR, "Cerrar apps normalmente")

    def esperar_texto(self, texto):
        self.ventana.esperar(texto, TEXTO)
