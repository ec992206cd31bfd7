"""A thread that offers D-Bus objects on the private session bus, and calls to other programs' objects."""

import threading

from gi.repository import Gio, GLib


def conectar(direccion):
    banderas = (Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
                | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
    return Gio.DBusConnection.new_for_address_sync(direccion, banderas, None, None)


def llamar(conexion, nombre, ruta, interfaz, metodo, argumentos=None):
    """Calls a method and returns its results as Python values."""
    respuesta = conexion.call_sync(nombre, ruta, interfaz, metodo, argumentos, None,
                                   Gio.DBusCallFlags.NONE, 10_000, None)
    return respuesta.unpack()


def propiedades(conexion, nombre, ruta, interfaz):
    return llamar(conexion, nombre, ruta, "org.freedesktop.DBus.Properties", "GetAll",
                  GLib.Variant("(s)", (interfaz,)))[0]


class Servicio:
    """One D-Bus object under one name. Subclasses state `NOMBRE`, `RUTA` and `XML`, and have a
    method for each D-Bus method that takes the sender and the unpacked arguments and returns the
    result as a `GLib.Variant` or None. They run on the bus thread."""

    NOMBRE = RUTA = XML = ""
    PROPIEDADES = {}

    def __init__(self, hilo):
        self.hilo = hilo
        self.conexion = None

    def emitir(self, interfaz, senal, argumentos):
        self.conexion.emit_signal(None, self.RUTA, interfaz, senal, argumentos)

    def aparecer(self):
        """Takes the name; returns when it is there."""
        self.hilo.hacer(self._registrar)

    def desaparecer(self):
        """Gives the name back, as a program that ended."""
        self.hilo.hacer(self._soltar)

    def _registrar(self):
        self.conexion = conectar(self.hilo.direccion)
        for interfaz in Gio.DBusNodeInfo.new_for_xml(self.XML).interfaces:
            self.conexion.register_object(self.RUTA, interfaz, self._llamada, self._propiedad, None)
        llamar(self.conexion, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
               "RequestName", GLib.Variant("(su)", (self.NOMBRE, 4)))

    def _soltar(self):
        self.conexion.close_sync(None)
        self.conexion = None

    def _llamada(self, _conexion, remitente, _ruta, _interfaz, metodo, argumentos, invocacion):
        try:
            invocacion.return_value(getattr(self, metodo)(remitente, *argumentos.unpack()))
        except Exception as error:  # the caller gets it as a D-Bus error
            invocacion.return_dbus_error("com.belmora.Pruebas.Error", repr(error))

    def _propiedad(self, _conexion, _remitente, _ruta, _interfaz, nombre):
        return self.PROPIEDADES[nombre](self)


class HiloDeBus:
    """The thread on which the services of one bus answer."""

    def __init__(self, direccion):
        self.direccion = direccion
        self._contexto = GLib.MainContext()
        self._bucle = GLib.MainLoop.new(self._contexto, False)
        self._hilo = threading.Thread(target=self._vivir, daemon=True)
        self._hilo.start()
        self.conexion_de_llamadas = conectar(direccion)

    def _vivir(self):
        self._contexto.push_thread_default()
        self._bucle.run()

    def hacer(self, accion):
        """Runs `accion` on the bus thread and waits for its result."""
        listo = threading.Event()
        resultado = []

        def correr():
            try:
                resultado.append((accion(), None))
            except Exception as error:
                resultado.append((None, error))
            listo.set()
            return False

        origen = GLib.idle_source_new()
        origen.set_callback(lambda *_: correr())
        origen.attach(self._contexto)
        if not listo.wait(20):
            raise TimeoutError("el hilo del bus no responde")
        valor, error = resultado[0]
        if error:
            raise error
        return valor

    def parar(self):
        self._bucle.quit()
        self._hilo.join(5)
